#pragma once

namespace vantorium {

/// The event loop of the face that runs the engine. Long operations give it a turn at fixed points, so that a Cancel
/// can be noticed; nothing else of a toolkit is known here.
class EventLoop {
 public:
  virtual ~EventLoop() = default;
  /// Handles what is waiting and returns at once.
  virtual void Turn() = 0;
  /// Sleeps until there is something to handle, and handles it. A loop that cannot sleep takes a turn.
  virtual void Wait() { Turn(); }
};

}  // namespace vantorium
