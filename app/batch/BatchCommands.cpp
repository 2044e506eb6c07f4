#include "app/batch/BatchCommands.h"

#include "app/batch/BatchPorts.h"
#include "app/batch/FindImages.h"
#include "app/batch/OutputNames.h"
#include "app/batch/Password.h"
#include "app/batch/ProjectJson.h"
#include "app/batch/ThemeChoice.h"
#include "core/ImageListOperations.h"
#include "core/ProjectSession.h"
#include "core/Theme.h"
#include "core/generation/CreateGallery.h"
#include "env/DriveTable.h"
#include "env/PathText.h"
#include "env/ProgramFolder.h"
#include "env/TempFolder.h"
#include "image/PangoTextRaster.h"
#include "publish/AsioFTPSocket.h"
#include "publish/UploadLog.h"

#include <algorithm>
#include <thread>

namespace vantorium {
namespace {

/// The status bar of a program without a window.
class TerminalStatus : public ProjectSessionHost {
 public:
  explicit TerminalStatus(Terminal& terminal) : terminal_(terminal) {}
  void SetStatusText(const std::string& text) override { terminal_.ShowStatus(text); }

 private:
  Terminal& terminal_;
};

std::filesystem::path ProgramFolderOf(const BatchOptions& options) {
  std::optional<std::filesystem::path> given;
  if (!options.programFolder.empty()) given = std::filesystem::absolute(options.programFolder);
  return FindProgramFolder(given, SurroundingsOfProcess());
}

unsigned JobsOf(const BatchOptions& options) {
  return options.jobs > 0 ? options.jobs : std::max(1U, std::thread::hardware_concurrency());
}

bool CanList(const std::optional<std::filesystem::path>& folder) {
  std::error_code error;
  if (folder) const std::filesystem::directory_iterator entries(*folder, error);
  return folder && !error;
}

/// The whole program for one command: the project and everything it depends on.
class BatchProgram {
 public:
  explicit BatchProgram(const BatchOptions& options)
      : options_(options),
        programFolder_(ProgramFolderOf(options)),
        paths_(ReadPathMap(GetINIFileName(programFolder_), SurroundingsOfProcess().home)),
        terminal_(ChooseProgressStyle(options.quiet, options.verbose)) {
    cancel_.OnCancel([this] { ftp_.FTPCancelData(); });
    session_.NewProject();
  }

  ExitCode Run();

 private:
  ExitCode New();
  /// Returns false after messages if the theme at `path` cannot be read. Does nothing for an empty path.
  [[nodiscard]] bool TakeTheme(const std::string& path);
  ExitCode Show();
  ExitCode Save();
  ExitCode Create();
  ExitCode Preview();
  ExitCode Publish();
  ExitCode Upload();

  [[nodiscard]] std::string PathText(const std::string& typed) const { return paths_.ToTextFromUser(typed); }
  [[nodiscard]] bool Load() { return session_.LoadProject(PathText(options_.project)); }
  /// Returns true, after a message, if the output is one of the inputs (as typed).
  [[nodiscard]] bool OutputIsAmong(const std::vector<std::string>& inputs) const;
  /// Shows `refusal` and returns true, unless it is empty.
  bool Refuse(const std::string& refusal);
  [[nodiscard]] ExitCode SaveTo(const std::string& typed);
  [[nodiscard]] ExitCode RunMode(GenerationMode mode, const CreateChoice& choice);
  [[nodiscard]] ExitCode EndOfFailedRun();
  [[nodiscard]] Preferences PreferencesOfRun() const;
  [[nodiscard]] CreateChoice Switches(CreateChoice::Option option) const;
  /// Returns what the run needs to know about the server, or nullopt after a message about the password file.
  [[nodiscard]] std::optional<CreateChoice> ServerChoice(CreateChoice::Option option);

  const BatchOptions& options_;
  std::filesystem::path programFolder_;
  PathMap paths_;
  RegionalFormats formats_;
  mFileFunctions files_{paths_, formats_};
  Terminal terminal_;
  TerminalMessageBox boxes_{terminal_};
  SystemClock present_;  ///< the log shows the real time of a run, whatever its creation time
  UploadLog log_{programFolder_, present_, boxes_};
  CancelCheck cancel_{boxes_};
  InterruptLoop loop_{cancel_};
  mFTP ftp_{
      std::make_unique<AsioFTPSocket>(loop_), std::make_unique<AsioFTPSocket>(loop_), paths_, boxes_, loop_, cancel_};
  TerminalStatus status_{terminal_};
  Screen screen_;
  PangoTextRaster texts_;
  Project project_;
  ImageListDisplay noDisplay_;
  ImageListOperations images_{project_, files_, boxes_, noDisplay_};
  ProjectFileDialog noDialog_;
  ProjectSession session_{project_, images_, {paths_, boxes_, noDialog_, status_, loop_}};
};

bool BatchProgram::OutputIsAmong(const std::vector<std::string>& inputs) const {
  const auto isOutput = [&](const std::string& input) {
    return IsSameFile(PathText(options_.output), PathText(input), paths_);
  };
  if (std::ranges::none_of(inputs, isOutput)) return false;
  SayInOneLine("\"" + options_.output + "\" is an input too (see --help)");
  return true;
}

bool BatchProgram::Refuse(const std::string& refusal) {
  if (!refusal.empty()) boxes_.Critical("File Error", refusal);
  return !refusal.empty();
}

ExitCode BatchProgram::New() {
  const auto theme = ProjectOfTheme(options_.theme, programFolder_, paths_);
  if (!theme) return ExitCode::WrongUsage;
  std::vector<std::string> inputs = options_.paths;
  if (!theme->empty()) inputs.push_back(*theme);
  if (OutputIsAmong(inputs)) return ExitCode::WrongUsage;
  if (Refuse(RefusalOfNewProject(PathText(options_.output), options_.force, paths_))) return ExitCode::Failure;
  std::vector<std::string> found;
  for (const std::string& path : options_.paths) {
    const FoundImages images = FindImages(path, options_.recursive, paths_);
    if (Refuse(images.problem)) return ExitCode::Failure;
    found.insert(found.end(), images.paths.begin(), images.paths.end());
  }
  if (!TakeTheme(*theme)) return ExitCode::Failure;
  if (options_.title) project_.settings.textGalleryTitle = *options_.title;
  if (!images_.AddFiles(found)) return ExitCode::Failure;
  return SaveTo(options_.output);
}

bool BatchProgram::TakeTheme(const std::string& path) {
  if (path.empty()) return true;
  const auto theme = ReadTheme(path, paths_, boxes_, loop_);
  if (theme) ApplyTheme(project_.settings, *theme);
  return theme.has_value();
}

ExitCode BatchProgram::Show() {
  const bool loaded = Load();
  const bool printed = PrintResult(ProjectAsJson(project_) + "\n");
  return loaded && printed ? ExitCode::Success : ExitCode::Failure;
}

ExitCode BatchProgram::Save() {
  if (OutputIsAmong({options_.project})) return ExitCode::WrongUsage;
  return Load() ? SaveTo(options_.output) : ExitCode::Failure;
}

ExitCode BatchProgram::SaveTo(const std::string& typed) {
  return session_.SaveProjectTo(PathText(typed)) ? ExitCode::Success : ExitCode::Failure;
}

ExitCode BatchProgram::Create() {
  if (OutputIsAmong({options_.project})) return ExitCode::WrongUsage;
  CreateChoice choice = Switches(CreateChoice::Option::CreateGallery);
  choice.FilePath = IndexFileOf(PathText(options_.output), paths_);
  if (Refuse(RefusalOfIndexFile(choice.FilePath, paths_)) || !Load()) return ExitCode::Failure;
  return RunMode(GenerationMode::Create, choice);
}

ExitCode BatchProgram::Publish() {
  const auto choice = ServerChoice(CreateChoice::Option::Publish);
  if (!choice || !Load()) return ExitCode::Failure;
  return RunMode(GenerationMode::Create, *choice);
}

ExitCode BatchProgram::Upload() {
  const std::string folder = PathText(options_.folder);
  if (!CanList(paths_.ToNative(folder))) {
    boxes_.Critical("File Error", "The folder \"" + options_.folder + "\" cannot be read.");
    return ExitCode::Failure;
  }
  auto choice = ServerChoice(CreateChoice::Option::UploadFolder);
  if (!choice) return ExitCode::Failure;
  choice->UploadSourceFolder = WithTrailingBackslash(folder);
  return RunMode(GenerationMode::Create, *choice);
}

CreateChoice BatchProgram::Switches(CreateChoice::Option option) const {
  CreateChoice choice;
  choice.option = option;
  choice.CreateImages = !options_.noImages;
  choice.CreateThumbnails = !options_.noThumbnails;
  choice.CreateHTMLFiles = !options_.noHtml;
  choice.Overwrite = !options_.keepExisting;
  return choice;
}

std::optional<CreateChoice> BatchProgram::ServerChoice(CreateChoice::Option option) {
  const auto password = ReadPassword(options_.passwordFile);
  if (!password) {
    boxes_.Critical("File Error", "The password file \"" + options_.passwordFile + "\" cannot be read.");
    return std::nullopt;
  }
  CreateChoice choice = Switches(option);
  choice.UploadServer = options_.server;
  choice.UploadPort = options_.port;
  choice.UploadUser = options_.user;
  choice.UploadPassword = *password;
  choice.UploadJumpTo = options_.baseDirectory;
  choice.UploadIndexPath = options_.remote;
  if (option == CreateChoice::Option::Publish) {
    const std::size_t name = options_.remote.find_last_of("/\\") + 1;  // npos + 1 is 0
    choice.UploadIndexPath = options_.remote.substr(0, name);
    choice.UploadIndexFile = options_.remote.substr(name);
  }
  return choice;
}

ExitCode BatchProgram::Preview() {
  if (!Load()) return ExitCode::Failure;
  return RunMode(GenerationMode::Preview, {});
}

ExitCode BatchProgram::RunMode(GenerationMode mode, const CreateChoice& choice) {
  BatchRunHost host(terminal_, loop_, log_, choice);
  BatchShell shell(paths_, options_.open);
  const BatchClock clock(options_.creationTime);
  Preferences preferences = PreferencesOfRun();
  GalleryCreator creator(
      project_, preferences, GetAppPath(programFolder_, paths_),
      {host, boxes_, loop_, clock, shell, files_, formats_, cancel_, screen_, texts_, &ftp_, JobsOf(options_)});
  const RunEnd end = creator.CreateGallery(mode, 0);
  terminal_.EraseBar();
  if (end != RunEnd::Success) return EndOfFailedRun();
  if (mode == GenerationMode::Preview) {
    const auto index = paths_.ToNative(TempFolderIn(preferences.TempFolderLocation) + "\\index.htm");
    const bool printed = PrintResult(index.value_or("").string() + "\n");
    if (!printed || !shell.HasOpened()) return ExitCode::Failure;
  }
  return ExitCode::Success;
}

/// A cancelled upload of a folder is a failure with its own message, but the exit code tells the caller of the program
/// that it was cancelled.
ExitCode BatchProgram::EndOfFailedRun() {
  if (cancel_.CancelRequested()) return ExitCode::Cancelled;
  // The progress window on a desktop has a button for the log instead of a message about what the server refused.
  if (!boxes_.HaveSpoken()) {
    const std::string log = (programFolder_ / kUploadLogName).string();
    boxes_.Critical("Upload failed", "What the server has answered is in the file \"" + log + "\".");
  }
  return ExitCode::Failure;
}

Preferences BatchProgram::PreferencesOfRun() const {
  Preferences preferences = ReadPreferences(GetINIFileName(programFolder_), GetAppPath(programFolder_, paths_), files_);
  if (!options_.tempFolder.empty()) preferences.TempFolderLocation = PathText(options_.tempFolder);
  return preferences;
}

ExitCode BatchProgram::Run() {
  if (Refuse(ProblemOfPreferences(GetINIFileName(programFolder_)))) return ExitCode::Failure;
  switch (options_.command) {
    case BatchCommand::New:
      return New();
    case BatchCommand::Show:
      return Show();
    case BatchCommand::Save:
      return Save();
    case BatchCommand::Create:
      return Create();
    case BatchCommand::Preview:
      return Preview();
    case BatchCommand::Publish:
      return Publish();
    case BatchCommand::Upload:
      return Upload();
  }
  return ExitCode::Failure;
}

}  // namespace

ExitCode RunBatchCommand(const BatchOptions& options) {
  return BatchProgram(options).Run();
}

}  // namespace vantorium
