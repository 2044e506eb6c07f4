#pragma once

namespace vantorium::env {

/// The event loop of the face that runs the engine. Long operations give it a turn at fixed points, so that a Cancel is
/// noticed. It does not depend on Qt.
class EventLoop {
 public:
  virtual ~EventLoop() = default;
  /// Handles pending events and returns without waiting.
  virtual void Turn() = 0;
  /// Sleeps until an event arrives and handles it. A loop that cannot sleep takes a turn instead.
  virtual void Wait() { Turn(); }
};

}  // namespace vantorium::env
