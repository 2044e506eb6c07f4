#include "ui/model/files/FolderWalk.h"

#include "core/ImageFormats.h"
#include "core/file/XmlText.h"
#include "env/PathText.h"

#include <algorithm>

#include <fmt/format.h>

namespace fs = std::filesystem;

namespace vantorium::ui {
namespace {

constexpr std::size_t kMostProblemsTold = 8;

}  // namespace

void FolderWalk::Run(const std::vector<std::string>& folders, FolderWalkProgress& progress) {
  progress_ = &progress;
  added_ = 0;
  problems_.clear();
  lastTurn_ = {};
  progress.Open();
  for (const std::string& folder : folders) {
    if (!AddFolder(folder)) break;
  }
  progress.Close();
  if (added_ != 0) parts_.project.IsModified = true;
  TellProblems();
}

/// Returns false if the walk must end.
bool FolderWalk::AddFolder(const std::string& folder) {
  folder_ = folder;
  for (const std::string& name : ImagesIn(folder)) {
    if (!GoesOn() || !AddImage(env::WithTrailingBackslash(folder) + name, name)) return false;
  }
  return GoesOn();
}

/// Returns the sorted names of a folder's photographs; none if the user cancels meanwhile.
std::vector<std::string> FolderWalk::ImagesIn(const std::string& folder) {
  std::vector<std::string> names;
  const auto native = parts_.paths.ToNative(folder);
  std::error_code error = native ? std::error_code() : std::make_error_code(std::errc::no_such_file_or_directory);
  fs::directory_iterator entry = native ? fs::directory_iterator(*native, error) : fs::directory_iterator();
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (!GoesOn()) return {};
    std::error_code unknown;
    std::string name = entry->path().filename().string();
    if (core::IsSupportedImageExtension(env::GetFileExtension(name)) && entry->is_regular_file(unknown)) {
      names.push_back(std::move(name));
    }
  }
  if (error) {
    problems_.push_back(
        fmt::format("\"{}\" cannot be read: {}.", core::ToXmlText(parts_.paths.Surface(folder)), error.message()));
  }
  std::ranges::sort(names);
  return names;
}

/// Returns false, after a message box, if the file could not be read. A name with a backslash would be the path of
/// another file.
bool FolderWalk::AddImage(const std::string& path, const std::string& name) {
  if (!core::IsXmlText(path) || name.find('\\') != std::string::npos) {
    const std::string shown = parts_.paths.Surface(env::WithTrailingBackslash(folder_)) + name;
    problems_.push_back(fmt::format("\"{}\" has a name that cannot stand in a project.", core::ToXmlText(shown)));
    return true;
  }
  if (!parts_.images.AddFile(path)) return false;
  ++added_;
  return true;
}

/// Updates the window and gives the event loop a turn from time to time. Returns false if the user has cancelled.
bool FolderWalk::GoesOn() {
  if (Clock::now() - lastTurn_ >= pace_) {
    progress_->Show(parts_.paths.Surface(folder_), added_);
    parts_.loop.Turn();
    lastTurn_ = Clock::now();
  }
  return !progress_->IsCancelled();
}

void FolderWalk::TellProblems() {
  if (problems_.empty()) return;
  std::string text;
  const std::size_t told = std::min(problems_.size(), kMostProblemsTold);
  for (std::size_t i = 0; i < told; ++i) text += problems_[i] + "\r";
  if (told < problems_.size()) text += fmt::format("There are {} more of these.\r", problems_.size() - told);
  text.pop_back();
  parts_.boxes.Show(env::BoxKind::Exclamation, env::BoxButtons::Ok, "Add Folder to Gallery", text);
}

}  // namespace vantorium::ui
