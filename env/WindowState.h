#pragma once

#include <string>

namespace vantorium::env {

/// What work that takes a while changes on the main window. A program without a window uses this class as it is.
/// Interfaces that need more of the window derive from it virtually, so that a window implements it once.
class WindowState {
 public:
  virtual ~WindowState() = default;
  /// Sets the first panel of the status bar.
  virtual void SetStatusText(const std::string& /*text*/) {}
  virtual void ShowBusyPointer(bool /*busy*/) {}
  virtual void EnableMainWindow(bool /*enabled*/) {}
};

/// Shows the busy pointer over the main window while it lives.
class BusyMainWindow {
 public:
  explicit BusyMainWindow(WindowState& window) : window_(window) { window_.ShowBusyPointer(true); }
  ~BusyMainWindow() { window_.ShowBusyPointer(false); }
  BusyMainWindow(const BusyMainWindow&) = delete;
  BusyMainWindow& operator=(const BusyMainWindow&) = delete;

 private:
  WindowState& window_;
};

/// Keeps the main window disabled while it lives.
class DisabledMainWindow {
 public:
  explicit DisabledMainWindow(WindowState& window) : window_(window) { window_.EnableMainWindow(false); }
  ~DisabledMainWindow() { window_.EnableMainWindow(true); }
  DisabledMainWindow(const DisabledMainWindow&) = delete;
  DisabledMainWindow& operator=(const DisabledMainWindow&) = delete;

 private:
  WindowState& window_;
};

}  // namespace vantorium::env
