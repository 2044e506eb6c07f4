#pragma once

#include "env/EventLoop.h"

namespace vantorium::ui {

/// Qt's event loop. A turn handles all pending events, including repaints.
class QtEventLoop : public env::EventLoop {
 public:
  void Turn() override;
  void Wait() override;
};

}  // namespace vantorium::ui
