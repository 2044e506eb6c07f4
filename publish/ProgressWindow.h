#pragma once

#include <cstdint>
#include <string>

namespace vantorium::publish {

/// The window in which every run reports. A face without windows implements it in another way. It exists for one run;
/// destroying it unloads the window.
class ProgressWindow {
 public:
  virtual ~ProgressWindow() = default;

  /// Whether the run is written to the upload log. Set before Show.
  bool LogToFile = false;
  /// Whether the user has asked to close the window, which is possible after OfferClose.
  bool CloseRequested = false;

  /// Shows the window without blocking, in front of the main window.
  virtual void Show() = 0;
  virtual void SetCaption(const std::string& text) = 0;
  virtual void SetText1(const std::string& text) = 0;
  virtual void SetText2(const std::string& text) = 0;
  /// Replaces the text of the log box, or appends to it.
  virtual void SetText3(const std::string& text, bool append) = 0;

  /// The bar of the whole run.
  virtual void SetMax(std::int32_t maximum) = 0;
  [[nodiscard]] virtual std::int32_t GetMax() const = 0;
  virtual void SetProgress(std::int32_t value) = 0;
  [[nodiscard]] virtual std::int32_t GetProgress() const = 0;
  /// The bar of the current file, in percent; it appears with the first call.
  virtual void SetFileProgress(std::int16_t percentage) = 0;

  /// Whether the user has asked to cancel the run.
  [[nodiscard]] virtual bool IsCancelled() const = 0;
  virtual void SetIsCancelled(bool cancelled) = 0;

  virtual void ShowBusyPointer(bool busy) = 0;
  /// Call when the run has failed: the user can no longer cancel it, but close the window and look at the log.
  virtual void OfferClose() = 0;
  [[nodiscard]] virtual std::string LogBoxText() const = 0;
  /// Appends text and a line end to the log file.
  virtual void WriteLog(const std::string& text) = 0;
};

}  // namespace vantorium::publish
