#pragma once

#include <string>

namespace vantorium {

/// What reading and writing a project file display. A program without a window uses this class as it is.
class ProjectFileStatus {
 public:
  virtual ~ProjectFileStatus() = default;
  /// The first panel of the status bar.
  virtual void SetStatusText(const std::string& /*text*/) {}
  virtual void ShowWaitPointer() {}
  virtual void ResetPointer() {}
};

}  // namespace vantorium
