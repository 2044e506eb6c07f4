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
#include "core/generation/RunMessages.h"
#include "env/DriveTable.h"
#include "env/OpenFolder.h"
#include "env/PathText.h"
#include "env/ProgramFolder.h"
#include "env/TempFolder.h"
#include "image/PangoTextRaster.h"
#include "publish/AsioFTPSocket.h"
#include "publish/UploadLog.h"

#include <algorithm>
#include <thread>

namespace vantorium::batch {
namespace {

std::filesystem::path ProgramFolderOf(const BatchOptions& options) {
  std::optional<std::filesystem::path> given;
  if (!options.programFolder.empty()) given = std::filesystem::absolute(options.programFolder);
  return env::FindProgramFolder(given, env::EnvironmentOfProcess());
}

unsigned JobsOf(const BatchOptions& options) {
  return options.jobs > 0 ? options.jobs : std::max(1U, std::thread::hardware_concurrency());
}

/// The whole program for one command: the project and everything it depends on.
class BatchProgram {
 public:
  explicit BatchProgram(const BatchOptions& options)
      : options_(options),
        programFolder_(ProgramFolderOf(options)),
        paths_(env::ReadPathMap(env::GetINIFileName(programFolder_), env::EnvironmentOfProcess().home)),
        terminal_(ChooseProgressStyle(options.quiet, options.verbose), options.json) {
    cancel_.OnCancel([this] { ftp_.FTPCancelData(); });
    session_.NewProject();
  }

  ExitCode Run();

 private:
  ExitCode RunCommand();
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
  [[nodiscard]] ExitCode CarryOut(const generation::RunOrder& order);
  [[nodiscard]] ExitCode CarryOutOnServer(const generation::RunOrder& order);
  [[nodiscard]] env::Preferences PreferencesOfRun() const;
  [[nodiscard]] generation::RunOrder OrderFor(generation::GenerationMode mode) const;
  /// Sets what the run needs to know about the server. Returns false, after a message, if there is no password.
  [[nodiscard]] bool SetServer(generation::RunOrder& order);

  const BatchOptions& options_;
  std::filesystem::path programFolder_;
  env::PathMap paths_;
  env::RegionalFormats formats_;
  env::mFileFunctions files_{paths_, formats_};
  Terminal terminal_;
  TerminalMessageBox boxes_{terminal_};
  env::SystemClock present_;  ///< the log shows the real time of a run, whatever its creation time
  publish::UploadLog log_{programFolder_, present_, boxes_};
  generation::CancelCheck cancel_{boxes_};
  InterruptLoop loop_{cancel_};
  publish::mFTP ftp_{std::make_unique<publish::AsioFTPSocket>(loop_),
                     std::make_unique<publish::AsioFTPSocket>(loop_),
                     paths_,
                     boxes_,
                     loop_,
                     cancel_};
  BatchHost host_{terminal_, boxes_, loop_, log_, options_.strict};
  env::Screen screen_;
  image::PangoTextRaster texts_;
  std::string index_;  ///< of a preview, native
  core::Project project_;
  core::ImageListDisplay noDisplay_;
  core::ImageListOperations images_{project_, files_, boxes_, noDisplay_};
  core::ProjectFileDialog noDialog_;
  core::ProjectSession session_{project_, images_, {paths_, boxes_, noDialog_, host_, loop_}};
};

bool BatchProgram::OutputIsAmong(const std::vector<std::string>& inputs) const {
  const auto isOutput = [&](const std::string& input) {
    return IsSameFile(PathText(options_.output), PathText(input), paths_);
  };
  if (std::ranges::none_of(inputs, isOutput)) return false;
  SayInOneLine("\"" + paths_.Surface(options_.output) + "\" is an input too (see --help)");
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
  if (Refuse(RefusalOfProject(PathText(options_.output), options_.force, paths_))) return ExitCode::Failure;
  std::vector<std::string> found;
  for (const std::string& path : options_.paths) {
    const FoundImages images = FindImages(path, options_.recursive, paths_);
    if (Refuse(images.problem)) return ExitCode::Failure;
    found.insert(found.end(), images.paths.begin(), images.paths.end());
  }
  if (!TakeTheme(*theme)) return ExitCode::Failure;
  if (options_.title) project_.settings.textGalleryTitle = *options_.title;
  project_.settings.checkImagesUpright = core::Flag{options_.upright};
  project_.settings.checkImagesTrueColors = core::Flag{options_.trueColors};
  if (!images_.AddFiles(found)) return ExitCode::Failure;
  return SaveTo(options_.output);
}

bool BatchProgram::TakeTheme(const std::string& path) {
  if (path.empty()) return true;
  const auto theme = core::ReadTheme(path, paths_, boxes_, loop_);
  if (theme) core::ApplyTheme(project_.settings, *theme);
  return theme.has_value();
}

ExitCode BatchProgram::Show() {
  const bool loaded = Load();
  const bool printed = PrintResult(ProjectAsJson(project_, paths_) + "\n");
  return loaded && printed ? ExitCode::Success : ExitCode::Failure;
}

ExitCode BatchProgram::Save() {
  if (OutputIsAmong({options_.project})) return ExitCode::WrongUsage;
  if (!Load() || Refuse(RefusalOfProject(PathText(options_.output), /*replace=*/true, paths_)))
    return ExitCode::Failure;
  return SaveTo(options_.output);
}

ExitCode BatchProgram::SaveTo(const std::string& typed) {
  return session_.SaveProjectTo(PathText(typed)) ? ExitCode::Success : ExitCode::Failure;
}

ExitCode BatchProgram::Create() {
  if (OutputIsAmong({options_.project})) return ExitCode::WrongUsage;
  const std::string indexFile = IndexFileOf(PathText(options_.output), paths_);
  if (Refuse(RefusalOfIndexFile(indexFile, paths_)) || !Load()) return ExitCode::Failure;
  generation::RunOrder order = OrderFor(generation::GenerationMode::Create);
  generation::SetIndexFile(order, indexFile);
  return CarryOut(order);
}

ExitCode BatchProgram::Preview() {
  if (!Load()) return ExitCode::Failure;
  return CarryOut({.Mode = generation::GenerationMode::Preview});
}

ExitCode BatchProgram::Publish() {
  generation::RunOrder order = OrderFor(generation::GenerationMode::Publish);
  generation::SetRemoteIndexFile(order, "", options_.remote);
  if (!SetServer(order) || !Load()) return ExitCode::Failure;
  return CarryOutOnServer(order);
}

ExitCode BatchProgram::Upload() {
  const std::string folder = PathText(options_.folder);
  const bool isReadable = env::CanListFolder(paths_.ToNative(folder));
  if (Refuse(isReadable ? "" : generation::UnableToReadFolder(paths_.Surface(options_.folder))))
    return ExitCode::Failure;
  generation::RunOrder order = OrderFor(generation::GenerationMode::Upload);
  order.OutputFolder = env::WithTrailingBackslash(folder);
  generation::SetRemoteFolder(order, options_.remote);
  return SetServer(order) ? CarryOutOnServer(order) : ExitCode::Failure;
}

generation::RunOrder BatchProgram::OrderFor(generation::GenerationMode mode) const {
  return {.Mode = mode,
          .CreateImages = !options_.noImages,
          .CreateThumbnails = !options_.noThumbnails,
          .CreateHTML = !options_.noHtml,
          .Overwrite = !options_.keepExisting,
          .OnlyChanges = options_.onlyChanges,
          .RemoveUnused = options_.removeUnused};
}

bool BatchProgram::SetServer(generation::RunOrder& order) {
  const auto password = ReadPassword(options_.passwordFile);
  if (Refuse(password ? "" : "The password file \"" + options_.passwordFile + "\" cannot be read.")) return false;
  order.ServerAddress = options_.server;
  order.Port = options_.port;
  order.UserName = options_.user;
  order.Password = *password;
  order.BaseDirectory = options_.baseDirectory;
  order.ServerOptions = options_.transfer;
  return true;
}

ExitCode BatchProgram::CarryOut(const generation::RunOrder& order) {
  BatchShell shell(paths_, options_.open);
  const BatchClock clock(options_.creationTime);
  env::Preferences preferences = PreferencesOfRun();
  generation::GalleryCreator creator(
      project_, preferences, env::GetAppPath(programFolder_, paths_),
      {{paths_, formats_, files_, boxes_, loop_, shell, clock, screen_, texts_, JobsOf(options_)},
       host_,
       cancel_,
       &ftp_,
       env::FindCacheFolder(env::EnvironmentOfProcess())});
  const generation::RunEnd end = creator.CarryOut(order, 0);
  terminal_.EraseBar();
  // A cancelled upload of a folder is a failure with its own message, but the exit code tells the caller of the program
  // that it was cancelled.
  if (end != generation::RunEnd::Success) return cancel_.CancelRequested() ? ExitCode::Cancelled : ExitCode::Failure;
  if (order.Mode == generation::GenerationMode::Preview) {
    const auto index = paths_.ToNative(env::TempFolderIn(preferences.TempFolderLocation) + "\\index.htm");
    index_ = index.value_or("").string();
    const bool printed = options_.json || PrintResult(index_ + "\n");
    if (!printed || !shell.HasOpened()) return ExitCode::Failure;
  }
  return ExitCode::Success;
}

/// The progress window on a desktop has a button for the log instead of a message about what the server refused.
ExitCode BatchProgram::CarryOutOnServer(const generation::RunOrder& order) {
  const ExitCode code = CarryOut(order);
  if (code == ExitCode::Failure && !boxes_.HaveSpoken()) {
    const std::string log = (programFolder_ / publish::kUploadLogName).string();
    boxes_.Critical("Upload failed", "What the server has answered is in the file \"" + log + "\".");
  }
  return code;
}

env::Preferences BatchProgram::PreferencesOfRun() const {
  env::Preferences preferences =
      env::ReadPreferences(env::GetINIFileName(programFolder_), env::GetAppPath(programFolder_, paths_), files_);
  if (!options_.tempFolder.empty()) preferences.TempFolderLocation = PathText(options_.tempFolder);
  return preferences;
}

ExitCode BatchProgram::Run() {
  const ExitCode code = RunCommand();
  auto& events = terminal_.Events();
  if (!events) return code;
  const bool written = events->End(code, index_);
  return written || code != ExitCode::Success ? code : ExitCode::Failure;
}

ExitCode BatchProgram::RunCommand() {
  if (Refuse(env::ProblemOfPreferences(env::GetINIFileName(programFolder_)))) return ExitCode::Failure;
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

}  // namespace vantorium::batch
