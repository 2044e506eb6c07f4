#pragma once

#include "env/EventLoop.h"

namespace vantorium::core {

/// Gives the event loop a turn at every 100th step of a long operation.
class RegularTurns {
 public:
  explicit RegularTurns(env::EventLoop& events) : events_(events) {}

  void Step() {
    if (++steps_ % 100 == 0) events_.Turn();
  }

 private:
  env::EventLoop& events_;
  int steps_ = 0;
};

}  // namespace vantorium::core
