#pragma once

#include "env/EventLoop.h"

#include <functional>

namespace vantorium::fakes {

/// Counts its turns and calls `onTurn` in each.
class CountingEventLoop : public env::EventLoop {
 public:
  void Turn() override {
    ++turns;
    if (onTurn) onTurn(turns);
  }

  int turns = 0;
  std::function<void(int turn)> onTurn;
};

}  // namespace vantorium::fakes
