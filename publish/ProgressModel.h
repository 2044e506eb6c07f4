#pragma once

#include "env/Shell.h"
#include "publish/CancelPoll.h"
#include "publish/ProgressWindow.h"
#include "publish/UploadLog.h"

#include <cstdint>
#include <string>

namespace vantorium {

/// A part of the progress window that has changed and is to be drawn.
enum class ProgressPart {
  Window,        ///< it comes up
  Caption,       //
  Text1,         //
  Text2,         //
  LogBox,        ///< has a new text
  LogBoxEnd,     ///< has more text; both LogBox changes put the caret on the last character
  Progress,      ///< the bar of the whole run
  FileProgress,  ///< the bar of the file under way
  Buttons,       //
  Pointer,       //
};

/// The most characters that the log box takes before more are added.
inline constexpr std::size_t kFullLogBox = 30000;

/// The progress window as far as it is not drawn: what it shows, what its buttons do, and its log. A face derives from
/// it and draws. It is loaded by its making, and unloading it with LogToFile set writes the end of the log.
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
  /// Adding to a box of kFullLogBox characters empties it first; with LogToFile set its text goes to the log.
  void SetText3(const std::string& text, bool append) final;
  void SetMax(std::int32_t maximum) final;
  void SetProgress(std::int32_t value) final;
  void SetFileProgress(std::int16_t percentage) final;
  void SetIsCancelled(bool cancelled) final { isCancelled_ = cancelled; }
  void ShowBusyPointer(bool busy) final;
  void OfferClose() override;
  /// Writes whether or not LogToFile is set. Only, a run without it makes no program folder for its text.
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
  [[nodiscard]] const std::string& CancelButtonCaption() const { return cancelButtonCaption_; }
  [[nodiscard]] bool IsShowLogVisible() const { return isShowLogVisible_; }

  /// CancelButton: as "&Cancel" it cancels, with the question of `cancel`, else it asks for the window to close.
  void PressCancelButton(CancelPoll& cancel);
  /// btnShowLog: opens the log. `appPath` is the program's folder as path text. A failure is not looked at.
  void PressShowLog(Shell& shell, const std::string& appPath) const;

 protected:
  /// Called behind each change; the state is read from this object.
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
  std::string cancelButtonCaption_;
  bool isShowLogVisible_ = false;
};

}  // namespace vantorium
