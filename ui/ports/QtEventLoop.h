#pragma once

#include "env/EventLoop.h"

namespace vantorium {

/// The toolkit's event loop. A turn handles what is waiting, windows to be drawn too.
class QtEventLoop : public EventLoop {
 public:
  void Turn() override;
  void Wait() override;
};

}  // namespace vantorium
