#pragma once

#include "env/EventLoop.h"

namespace vantorium {

/// Qt's event loop. A turn handles all pending events, including repaints.
class QtEventLoop : public EventLoop {
 public:
  void Turn() override;
  void Wait() override;
};

}  // namespace vantorium
