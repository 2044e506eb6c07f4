#include "core/ProjectSession.h"

#include "core/ProjectEditor.h"
#include "core/file/ProjectFileReader.h"
#include "core/file/ProjectFileWriter.h"
#include "env/PathText.h"
#include "env/Text.h"

#include <fmt/format.h>

namespace vantorium::core {
namespace {

constexpr char kFileFilter[] = "Vantorium 3.0 Project Files (*.gpj)|*.gpj";

void ShowFileError(env::MessageBoxPort& boxes, const std::string& text) {
  boxes.Show(env::BoxKind::Exclamation, env::BoxButtons::Ok, "File Error", text);
}

}  // namespace

void ProjectSession::NewProject() {
  if (!MayLeaveProject()) return;
  if (!project_.IsModified && project_.IsPristine) return;
  ResetToDefaults(project_.settings, project_.UntitledName());
  project_.images.Clear();
  parts_.host.RefreshPreview();
  parts_.host.RefreshCounts();
  parts_.host.RefreshPageCount();
  StartUntitledProject();
}

void ProjectSession::StartUntitledProject() {
  project_.UntitledCounter = static_cast<std::int16_t>(project_.UntitledCounter + 1);
  project_.ProjectFileName = project_.UntitledName();
  project_.settings.textGalleryTitle = project_.UntitledName();
  parts_.host.RefreshTitleBar();
  parts_.host.HideDescriptionsWindow();
  images_.StopSorting();
  holdsPartOfAnotherFile_ = false;
  parts_.host.SelectFirstTab();
  parts_.host.FocusTitleField();
  project_.IsPristine = true;
  project_.IsUntitled = true;
  project_.IsModified = false;
  parts_.host.RebuildCustomColors();
}

env::BoxAnswer ProjectSession::AskToSave() {
  project_.IsPristine = false;
  return parts_.boxes.Show(env::BoxKind::Question, env::BoxButtons::YesNoCancel, "Project modified",
                           "The current Gallery Project has been modified.  Do you wish to save the changes?");
}

bool ProjectSession::MayLeaveProject() {
  if (!project_.IsModified) return true;
  const env::BoxAnswer answer = AskToSave();
  return answer == env::BoxAnswer::Yes ? SaveProject() : answer == env::BoxAnswer::No;
}

void ProjectSession::OpenProject() {
  if (project_.IsModified) {
    const env::BoxAnswer answer = AskToSave();
    // A failed save does not stop the Open.
    if (answer == env::BoxAnswer::Yes) SaveProject();
    if (answer == env::BoxAnswer::Cancel) return;
  }
  const std::string path = parts_.dialog.Choose({.purpose = ProjectFileDialog::Purpose::Open,
                                                 .title = "Open Gallery Project",
                                                 .filter = kFileFilter,
                                                 .defaultPattern = "*.gpj",
                                                 .defaultExtension = "",
                                                 .folder = project_.LastProjectFolder,
                                                 .fileName = ""});
  if (path.empty()) return;
  project_.images.Clear();
  images_.StopSorting();
  parts_.host.ShowInfoWindow("Please wait... Reading Project File.");
  const bool read = ReadWhileDisabled(path);
  parts_.host.HideInfoWindow();
  if (read) AdoptOpened(path);
}

void ProjectSession::OpenProjectFromCommandLine(std::string_view commandLine) {
  const std::string typed = env::ReplaceAll(commandLine, "\"", "");
  if (typed.empty()) return;
  const std::string path = parts_.paths.ToTextFromUser(typed);
  images_.StopSorting();
  const bool read = ReadWhileDisabled(path);
  if (read) AdoptOpened(path);
}

bool ProjectSession::LoadProject(const std::string& path) {
  project_.images.Clear();
  images_.StopSorting();
  const bool read = Read(path);
  if (read) AdoptOpened(path);
  return read;
}

bool ProjectSession::ReadWhileDisabled(const std::string& path) {
  const env::DisabledMainWindow disabled(parts_.host);
  return Read(path);
}

bool ProjectSession::Read(const std::string& path) {
  ProjectFileReader reader(project_, images_, parts_.paths, parts_.boxes, parts_.host, parts_.events);
  reader.OnSourcesWithoutPlace([this](const auto& sources) { return parts_.host.AskForMovedFolders(sources); });
  const bool read = reader.ReadProjectFile(path);
  hasMovedSources_ = reader.HasMovedSources();
  images_.SelectFirstIfNoneIsCurrent();
  if (!read) {
    holdsPartOfAnotherFile_ = true;
    ShowFileError(parts_.boxes, fmt::format("An error occurred while opening the Gallery Project \"{}\".",
                                            parts_.paths.Surface(path)));
  }
  return read;
}

void ProjectSession::AdoptOpened(const std::string& path) {
  TakePath(path);
  holdsPartOfAnotherFile_ = false;
  project_.IsUntitled = false;
  project_.IsModified = hasMovedSources_;
  project_.IsPristine = false;
  parts_.host.RefreshTitleBar();
  parts_.host.RefreshPageCount();
  parts_.host.RefreshCounts();
  parts_.host.RefreshPreview();
}

void ProjectSession::TakePath(const std::string& path) {
  // GetFilePath would drop a leading separator, but the folder must lead back to the file.
  const std::string whole = env::WithBackslashes(path);
  const auto name = whole.rfind('\\') + 1;  // npos + 1 is 0
  project_.ProjectFolder = whole.substr(0, name);
  project_.ProjectFileName = whole.substr(name);
  project_.LastProjectFolder = project_.ProjectFolder;
}

bool ProjectSession::SaveProject() {
  NormalizeForOutput(project_.settings, project_.IsModified);
  const bool asksForName = project_.IsUntitled || holdsPartOfAnotherFile_;
  const bool saved = asksForName ? WriteToChosenFile() : WriteToItsFile();
  if (saved) AdoptSaved();
  return saved;
}

void ProjectSession::SaveProjectAs() {
  const bool wasUntitled = project_.IsUntitled;
  project_.IsUntitled = true;
  SaveProject();
  project_.IsUntitled = wasUntitled;
}

bool ProjectSession::SaveProjectTo(const std::string& path) {
  NormalizeForOutput(project_.settings, project_.IsModified);
  if (!Write(path)) return false;
  TakePath(path);
  AdoptSaved();
  return true;
}

bool ProjectSession::WriteToChosenFile() {
  const std::string path = parts_.dialog.Choose({.purpose = ProjectFileDialog::Purpose::Save,
                                                 .title = "Save Gallery Project As",
                                                 .filter = kFileFilter,
                                                 .defaultPattern = "",
                                                 .defaultExtension = "gpj",
                                                 .folder = project_.LastProjectFolder,
                                                 .fileName = project_.ProjectFileName});
  if (path.empty() || !Write(path)) return false;
  TakePath(path);
  return true;
}

bool ProjectSession::WriteToItsFile() {
  project_.ProjectFileName = env::WithExtension(project_.ProjectFileName, ".gpj");
  return Write(project_.ProjectFolder + project_.ProjectFileName);
}

bool ProjectSession::Write(const std::string& path) {
  parts_.host.ShowInfoWindow("Please wait... Writing Project File.");
  const bool written = WriteWhileDisabled(path);
  parts_.host.HideInfoWindow();
  return written;
}

bool ProjectSession::WriteWhileDisabled(const std::string& path) {
  const env::DisabledMainWindow disabled(parts_.host);
  const bool written = ProjectFileWriter(project_, parts_.paths, parts_.host, parts_.events).WriteProjectFile(path);
  if (!written) ShowFileError(parts_.boxes, "An error occurred while saving the Gallery Project.");
  return written;
}

void ProjectSession::AdoptSaved() {
  holdsPartOfAnotherFile_ = false;
  project_.IsUntitled = false;
  project_.IsModified = false;
  project_.IsPristine = false;
  parts_.host.RefreshTitleBar();
}

}  // namespace vantorium::core
