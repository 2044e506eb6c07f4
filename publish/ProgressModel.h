#pragma once

#include "publish/ProgressWindow.h"
#include "publish/UploadLog.h"

#include <cstdint>
#include <string>

namespace vantorium::publish {

/// A part of the progress window that has changed and must be drawn.
enum class ProgressPart {
  Window,        ///< it was shown
  Caption,       //
  Text1,         //
  Text2,         //
  LogBox,        ///< has a new text
  LogBoxEnd,     ///< has more text; both LogBox changes move the caret to the last character
  Progress,      ///< the bar of the whole run
  FileProgress,  ///< the bar of the current file
  Buttons,       ///< the run has failed, and the user may close the window
  Pointer,       //
};

/// The length, in characters, at which the log box is emptied before more text is appended.
inline constexpr std::size_t kFullLogBox = 30000;

/// What the progress window shows, and its log. A face derives from it and draws. Constructing it loads the window;
/// destroying it unloads the window and, with LogToFile set, writes the end of the log.
class ProgressModel : public ProgressWindow {
 public:
  explicit ProgressModel(UploadLog& log) : log_(log) {}
  ~ProgressModel() override;
  ProgressModel(const ProgressModel&) = delete;
  ProgressModel& operator=(const ProgressModel&) = delete;

  /// With LogToFile set, begins the log.
  void Show() final;
  void SetCaption(const std::string& text) final;
  void SetText1(const std::string& text) final;
  void SetText2(const std::string& text) final;
  /// Appending to a box of at least kFullLogBox characters empties it first; with LogToFile set, its text goes to the
  /// log.
  void SetText3(const std::string& text, bool append) final;
  void SetMax(std::int32_t maximum) final;
  void SetProgress(std::int32_t value) final;
  void SetFileProgress(std::int16_t percentage) final;
  void SetIsCancelled(bool cancelled) final { isCancelled_ = cancelled; }
  void ShowBusyPointer(bool busy) final;
  void OfferClose() override;
  /// Writes even if LogToFile is not set, but then only if the program's folder exists.
  void WriteLog(const std::string& text) final;

  [[nodiscard]] const std::string& Caption() const { return caption_; }
  [[nodiscard]] const std::string& Text1() const { return text1_; }
  [[nodiscard]] const std::string& Text2() const { return text2_; }
  [[nodiscard]] std::string LogBoxText() const final { return logBox_; }
  [[nodiscard]] std::int32_t GetMax() const final { return maximum_; }
  [[nodiscard]] std::int32_t GetProgress() const final { return progress_; }
  [[nodiscard]] bool IsFileProgressVisible() const { return isFileProgressVisible_; }
  /// From 0 to 100.
  [[nodiscard]] std::int16_t FileProgress() const { return fileProgress_; }
  [[nodiscard]] bool IsCancelled() const final { return isCancelled_; }
  [[nodiscard]] bool IsPointerBusy() const { return isPointerBusy_; }
  [[nodiscard]] bool OffersClose() const { return offersClose_; }

 protected:
  /// Called after each change; implementations read the state from this object.
  virtual void Draw(ProgressPart /*part*/) {}

 private:
  void TakeSavepoint();

  UploadLog& log_;
  std::string caption_;
  std::string text1_;
  std::string text2_;
  std::string logBox_;
  std::int32_t maximum_ = 100;
  std::int32_t progress_ = 0;
  bool isFileProgressVisible_ = false;
  std::int16_t fileProgress_ = 0;
  bool isCancelled_ = false;
  bool isPointerBusy_ = false;
  bool offersClose_ = false;
};

}  // namespace vantorium::publish
