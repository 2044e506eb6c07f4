#include "publish/ProgressModel.h"

#include "publish/UploadLog.h"

namespace vantorium::publish {
namespace {

bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Returns the number of bytes of the UTF-8 character at `at`. A byte that is not part of one counts as a character of
/// its own, as in the replies of servers that use another encoding.
std::size_t CharacterSize(const std::string& text, std::size_t at) {
  const auto first = static_cast<unsigned char>(text[at]);
  const std::size_t size = first >= 0xF0U ? 4 : first >= 0xE0U ? 3 : first >= 0xC0U ? 2 : 1;
  for (std::size_t i = 1; i < size; ++i) {
    if (at + i >= text.size() || !IsContinuation(text[at + i])) return 1;
  }
  return size;
}

bool HasCharacters(const std::string& text, std::size_t count) {
  if (text.size() < count) return false;
  std::size_t found = 0;
  for (std::size_t at = 0; at < text.size(); at += CharacterSize(text, at)) ++found;
  return found >= count;
}

}  // namespace

ProgressModel::~ProgressModel() {
  if (LogToFile) log_.WriteLogFooter(logBox_);
}

void ProgressModel::Show() {
  isFileProgressVisible_ = false;
  CloseRequested = false;
  offersClose_ = false;
  if (LogToFile) log_.WriteLogHeader();
  Draw(ProgressPart::Window);
}

void ProgressModel::SetCaption(const std::string& text) {
  caption_ = text;
  Draw(ProgressPart::Caption);
}

void ProgressModel::SetText1(const std::string& text) {
  text1_ = text;
  Draw(ProgressPart::Text1);
}

void ProgressModel::SetText2(const std::string& text) {
  text2_ = text;
  Draw(ProgressPart::Text2);
}

void ProgressModel::SetText3(const std::string& text, bool append) {
  if (!append) {
    logBox_ = text;
    return Draw(ProgressPart::LogBox);
  }
  if (HasCharacters(logBox_, kFullLogBox)) TakeSavepoint();
  logBox_ += text;
  Draw(ProgressPart::LogBoxEnd);
}

void ProgressModel::TakeSavepoint() {
  if (LogToFile) log_.WriteLog(logBox_ + "\r\nLog savepoint - writing to disk...\r\n");
  logBox_.clear();
  Draw(ProgressPart::LogBox);
}

void ProgressModel::SetMax(std::int32_t maximum) {
  maximum_ = maximum;
  Draw(ProgressPart::Progress);
}

void ProgressModel::SetProgress(std::int32_t value) {
  progress_ = value;
  Draw(ProgressPart::Progress);
}

void ProgressModel::SetFileProgress(std::int16_t percentage) {
  isFileProgressVisible_ = true;
  fileProgress_ = percentage;
  Draw(ProgressPart::FileProgress);
}

void ProgressModel::ShowBusyPointer(bool busy) {
  isPointerBusy_ = busy;
  Draw(ProgressPart::Pointer);
}

void ProgressModel::OfferClose() {
  offersClose_ = true;
  Draw(ProgressPart::Buttons);
}

void ProgressModel::WriteLog(const std::string& text) {
  if (LogToFile || log_.HasFolder()) log_.WriteLog(text);
}

}  // namespace vantorium::publish
