#include "ui/model/files/FileNameBox.h"

#include "env/PathText.h"
#include "env/Text.h"

namespace vantorium::ui {

std::uint32_t FileDialogFlags(const FileDialogRequest& request) {
  using namespace FileDialogFlag;
  std::uint32_t flags = kOverwritePrompt | kHideReadOnly | kFileMustExist | kExplorer | kLongNames;
  if (request.multiSelect) flags |= kAllowMultiSelect;
  return flags & ~(request.open ? kOverwritePrompt : kFileMustExist);
}

std::string AcceptButtonText(const FileDialogRequest& request) {
  if (request.preview) return request.multiSelect ? "Add Images" : "Use Image";
  return request.open ? "Open" : "Save";
}

std::vector<std::string> CutFileNames(std::string_view text) {
  constexpr std::string_view kSeparator("\0", 1);
  if (text.starts_with('"')) text.remove_prefix(1);
  if (text.ends_with('"')) text.remove_suffix(1);
  std::string cut(text);
  for (const std::string_view quotes : {"\" \"", "\"\"", "\""}) cut = env::ReplaceAll(cut, quotes, kSeparator);

  std::vector<std::string> names;
  if (cut.empty()) return names;
  std::size_t start = 0;
  for (std::size_t end = cut.find('\0'); end != std::string::npos; end = cut.find('\0', start)) {
    names.push_back(cut.substr(start, end - start));
    start = end + 1;
  }
  names.push_back(cut.substr(start));
  return names;
}

std::vector<std::string> ChosenFileNames(std::string_view text, std::string_view lastBrowsed) {
  std::vector<std::string> names = CutFileNames(text);
  if (names.size() == 1 && env::GetFileExtension(names[0]).empty() && !lastBrowsed.empty()) {
    names[0] = env::GetFileName(lastBrowsed);
  }
  return names;
}

std::string JoinFileNames(const std::vector<std::string>& names) {
  if (names.size() == 1) return names[0];
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "\"" : " \"") + name + '"';
  return text;
}

void FileNameLimit::SelectionChanged(std::size_t length) {
  exceeded_ = length >= kTooLong;
  if (exceeded_) Tell();
}

void FileNameLimit::Typed(std::size_t length) {
  const bool before = exceeded_;
  exceeded_ = length >= kTooLong;
  if (exceeded_ && !before) Tell();
}

void FileNameLimit::Tell() {
  boxes_.Show(env::BoxKind::Information, env::BoxButtons::Ok, "File Name Length Limit",
              "You have exceeded the file name length limit. Please deselect some files, insert the rest, and open "
              "this dialog a second time.");
}

}  // namespace vantorium::ui
