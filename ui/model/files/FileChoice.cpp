#include "ui/model/files/FileChoice.h"

#include "core/file/XmlText.h"
#include "env/OpenFolder.h"
#include "env/PathText.h"
#include "env/Text.h"
#include "ui/model/files/FileNameBox.h"

namespace vantorium::ui {
namespace {

/// In what a user types, any character before a colon counts as a drive.
bool BeginsWithDrive(std::string_view path) {
  return path.size() >= 2 && path[1] == ':';
}

bool HasFolder(const std::string& name) {
  return BeginsWithDrive(name) || name.find_first_of("/\\") != std::string::npos;
}

/// Returns `path` through its last separator. Unlike GetFilePath it keeps a leading separator.
std::string FolderOf(const std::string& path) {
  return path.substr(0, path.rfind('\\') + 1);
}

bool GoesUp(const std::string& path) {
  return (path + '\\').find("\\..\\") != std::string::npos;
}

/// Returns the text of the box for a single file, without surrounding quotes.
std::string WithoutQuotes(std::string_view text) {
  text = env::TrimNull(text);
  if (text.size() >= 2 && text.starts_with('"') && text.ends_with('"')) text = text.substr(1, text.size() - 2);
  return std::string(text);
}

}  // namespace

FileChoice::FileChoice(FileDialogRequest request, const env::mFileFunctions& files, env::MessageBoxPort& boxes)
    : request_(std::move(request)), flags_(FileDialogFlags(request_)), files_(files), boxes_(boxes) {}

FileChoice::Step FileChoice::Ok(const std::string& folder, const std::string& text) {
  const bool several = request_.open && Has(FileDialogFlag::kAllowMultiSelect);
  const std::vector<std::string> names = several ? CutFileNames(text) : std::vector{WithoutQuotes(text)};
  if (names.empty() || names[0].empty()) return Step::Stay;

  std::vector<std::string> paths;
  paths.reserve(names.size());
  for (const std::string& name : names) paths.push_back(PathOf(folder, name));
  if (paths.size() == 1 && IsFolder(paths[0])) {
    folder_ = env::WithTrailingBackslash(paths[0]);
    return Step::EnterFolder;
  }
  return several ? AcceptSeveral(text, names, paths) : AcceptOne(WithDefaultExtension(paths[0]));
}

std::string FileChoice::WithSurfaces(const std::string& text) const {
  std::vector<std::string> names = CutFileNames(text);
  bool turned = false;
  for (std::string& name : names) {
    const std::string shown = files_.Paths().Surface(files_.Paths().ToTextIfNative(name));
    if (shown == name) continue;
    name = shown;
    turned = true;
  }
  return turned ? JoinFileNames(names) : text;
}

bool FileChoice::IsFolder(const std::string& path) const {
  return env::IsFolder(files_.Paths().ToNative(path));
}

std::string FileChoice::PathOf(const std::string& folder, const std::string& name) const {
  std::string path = env::WithBackslashes(files_.Paths().ToTextIfNative(name));
  if (!BeginsWithDrive(path) && !path.starts_with('\\')) path = env::WithTrailingBackslash(folder) + path;
  if (BeginsWithDrive(path) && path.find('\\') == std::string::npos) path.insert(2, 1, '\\');
  const auto native = GoesUp(path) ? files_.Paths().ToNative(path) : std::nullopt;
  return native ? files_.Paths().ToText(native->lexically_normal()) : path;
}

std::string FileChoice::WithDefaultExtension(const std::string& path) const {
  const bool complete = request_.defaultExtension.empty() || (request_.open && files_.PathExists(path));
  return complete ? path : env::WithExtension(path, '.' + request_.defaultExtension);
}

bool FileChoice::MayBeChosen(const std::string& path) {
  if (!core::IsXmlText(path)) {
    Tell(core::ToXmlText(env::GetFileName(path)) + "\r\nThis name cannot stand in a project.");
    return false;
  }
  if (!files_.Paths().ToNative(path)) {
    Tell(path + "\r\nPath does not exist.\r\nPlease check the path and try again.");
    return false;
  }
  const bool exists = files_.PathExists(path);
  if (Has(FileDialogFlag::kFileMustExist) && (!exists || IsFolder(path))) {
    Tell(env::GetFileName(path) + "\r\nFile not found.\r\nPlease check the file name and try again.");
    return false;
  }
  return !exists || !Has(FileDialogFlag::kOverwritePrompt) ||
         boxes_.AskYesNo(request_.title, env::GetFileName(path) + " already exists.\r\nDo you want to replace it?");
}

FileChoice::Step FileChoice::AcceptOne(const std::string& path) {
  if (!MayBeChosen(path)) return Step::Stay;
  result_ = {.result = path, .folder = FolderOf(path), .names = {path}};
  return Step::Accept;
}

FileChoice::Step FileChoice::AcceptSeveral(const std::string& text, const std::vector<std::string>& names,
                                           const std::vector<std::string>& paths) {
  const std::string folder = FolderOf(paths[0]);
  bool plain = true;
  std::vector<std::string> parts;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    if (!MayBeChosen(paths[i])) return Step::Stay;
    if (FolderOf(paths[i]) != folder) {
      Tell("The files have to be in one folder.");
      return Step::Stay;
    }
    plain = plain && !HasFolder(names[i]);
    parts.push_back(env::GetFileName(paths[i]));
  }
  if (paths.size() == 1) lastBrowsed_ = paths[0];  // it was typed, perhaps over the name of another file
  const std::string box = plain ? text : JoinFileNames(parts);
  result_ = {.result = box, .folder = folder, .names = ChosenFileNames(box, lastBrowsed_)};
  return Step::Accept;
}

void FileChoice::Tell(const std::string& text) {
  boxes_.Show(env::BoxKind::Exclamation, env::BoxButtons::Ok, request_.title, text);
}

}  // namespace vantorium::ui
