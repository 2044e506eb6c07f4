#pragma once

#include <cstdint>
#include <string>

namespace vantorium {

/// The window through which every run reports. A face without windows puts any object with these operations in its
/// place. It exists for one run; destroying it unloads the window.
class ProgressWindow {
 public:
  virtual ~ProgressWindow() = default;

  /// The run is written to the upload log. Set before Show.
  bool LogToFile = false;
  /// The user pressed the button after it had turned into "&Close".
  bool CloseRequested = false;

  /// Shows the window without blocking, in front of the main window.
  virtual void Show() = 0;
  virtual void SetCaption(const std::string& text) = 0;
  virtual void SetText1(const std::string& text) = 0;
  virtual void SetText2(const std::string& text) = 0;
  /// Writes to the log box: in place of its text, or behind it.
  virtual void SetText3(const std::string& text, bool append) = 0;

  /// The bar of the whole run.
  virtual void SetMax(std::int32_t maximum) = 0;
  [[nodiscard]] virtual std::int32_t GetMax() const = 0;
  virtual void SetProgress(std::int32_t value) = 0;
  [[nodiscard]] virtual std::int32_t GetProgress() const = 0;
  /// The bar of the file under way, in percent; it appears with the first call.
  virtual void SetFileProgress(std::int16_t percentage) = 0;

  /// The user pressed "&Cancel".
  [[nodiscard]] virtual bool IsCancelled() const = 0;
  virtual void SetIsCancelled(bool cancelled) = 0;

  virtual void ShowBusyPointer(bool busy) = 0;
  /// Turns the cancel button into "&Close" and shows the button "&Show Log".
  virtual void OfferClose() = 0;
  /// The text of the log box.
  [[nodiscard]] virtual std::string LogBoxText() const = 0;
  /// Adds text and a line end to the log file.
  virtual void WriteLog(const std::string& text) = 0;
};

}  // namespace vantorium
