#include "app/batch/BatchCommands.h"

#include "app/batch/BatchPorts.h"
#include "app/batch/FindImages.h"
#include "app/batch/ProjectJson.h"
#include "core/ImageListOperations.h"
#include "core/ProjectSession.h"
#include "core/generation/CreateGallery.h"
#include "env/DriveTable.h"
#include "env/ProgramFolder.h"
#include "image/PangoTextRaster.h"

#include <algorithm>
#include <cstdio>
#include <thread>

#include <fmt/format.h>

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

/// The whole program for the length of one command: the one project and everything around it.
class BatchProgram {
 public:
  explicit BatchProgram(const BatchOptions& options)
      : options_(options),
        programFolder_(ProgramFolderOf(options)),
        paths_(ReadDriveTable(GetINIFileName(programFolder_)), SurroundingsOfProcess().home),
        terminal_(ChooseProgressStyle(options.quiet, options.verbose)) {
    session_.NewProject();
  }

  ExitCode New();
  ExitCode Show();
  ExitCode Save();
  ExitCode Create();
  ExitCode Preview();

 private:
  [[nodiscard]] std::string PathText(const std::string& typed) const { return paths_.ToTextFromUser(typed); }
  [[nodiscard]] bool Load() { return session_.LoadProject(PathText(options_.project)); }
  [[nodiscard]] ExitCode SaveTo(const std::string& typed);
  [[nodiscard]] ExitCode RunMode(GenerationMode mode, const CreateChoice& choice);
  [[nodiscard]] Preferences PreferencesOfRun() const;

  const BatchOptions& options_;
  std::filesystem::path programFolder_;
  PathMap paths_;
  RegionalFormats formats_;
  mFileFunctions files_{paths_, formats_};
  Terminal terminal_;
  TerminalMessageBox boxes_{terminal_};
  CancelCheck cancel_{boxes_};
  InterruptLoop loop_{cancel_};
  TerminalStatus status_{terminal_};
  Screen screen_;
  PangoTextRaster texts_;
  Project project_;
  ImageListDisplay noDisplay_;
  ImageListOperations images_{project_, files_, boxes_, noDisplay_};
  ProjectFileDialog noDialog_;
  ProjectSession session_{project_, images_, {paths_, boxes_, noDialog_, status_, loop_}};
};

ExitCode BatchProgram::New() {
  std::vector<std::string> found;
  for (const std::string& path : options_.paths) {
    const FoundImages images = FindImages(path, options_.recursive, paths_);
    if (!images.problem.empty()) {
      boxes_.Critical("File Error", images.problem);
      return ExitCode::Failure;
    }
    found.insert(found.end(), images.paths.begin(), images.paths.end());
  }
  if (options_.title) project_.settings.textGalleryTitle = *options_.title;
  if (!images_.AddFiles(found)) return ExitCode::Failure;
  return SaveTo(options_.output);
}

ExitCode BatchProgram::Show() {
  const bool loaded = Load();
  fmt::print("{}\n", ProjectAsJson(project_));
  return loaded ? ExitCode::Success : ExitCode::Failure;
}

ExitCode BatchProgram::Save() {
  return Load() ? SaveTo(options_.output) : ExitCode::Failure;
}

ExitCode BatchProgram::SaveTo(const std::string& typed) {
  return session_.SaveProjectTo(PathText(typed)) ? ExitCode::Success : ExitCode::Failure;
}

ExitCode BatchProgram::Create() {
  if (!Load()) return ExitCode::Failure;
  return RunMode(GenerationMode::Create, {.option = CreateChoice::Option::CreateGallery,
                                          .CreateImages = !options_.noImages,
                                          .CreateThumbnails = !options_.noThumbnails,
                                          .CreateHTMLFiles = !options_.noHtml,
                                          .Overwrite = !options_.keepExisting,
                                          .FilePath = PathText(options_.output)});
}

ExitCode BatchProgram::Preview() {
  if (!Load()) return ExitCode::Failure;
  return RunMode(GenerationMode::Preview, {});
}

ExitCode BatchProgram::RunMode(GenerationMode mode, const CreateChoice& choice) {
  BatchRunHost host(terminal_, loop_, choice);
  BatchShell shell(paths_, options_.open);
  const BatchClock clock(options_.creationTime);
  Preferences preferences = PreferencesOfRun();
  GalleryCreator creator(
      project_, preferences, GetAppPath(programFolder_, paths_),
      {host, boxes_, loop_, clock, shell, files_, formats_, cancel_, screen_, texts_, JobsOf(options_)});
  const RunEnd end = creator.CreateGallery(mode, 0);
  terminal_.EraseBar();
  if (end == RunEnd::Cancelled) return ExitCode::Cancelled;
  if (end != RunEnd::Success) return ExitCode::Failure;
  if (mode == GenerationMode::Preview) {
    const auto index = paths_.ToNative(preferences.TempFolderLocation + "\\VANTORIUM_TEMP\\index.htm");
    fmt::print("{}\n", index.value_or("").string());
  }
  return ExitCode::Success;
}

Preferences BatchProgram::PreferencesOfRun() const {
  Preferences preferences = ReadPreferences(GetINIFileName(programFolder_), GetAppPath(programFolder_, paths_), files_);
  if (!options_.tempFolder.empty()) preferences.TempFolderLocation = PathText(options_.tempFolder);
  return preferences;
}

}  // namespace

ExitCode RunBatchCommand(const BatchOptions& options) {
  BatchProgram program(options);
  switch (options.command) {
    case BatchCommand::New:
      return program.New();
    case BatchCommand::Show:
      return program.Show();
    case BatchCommand::Save:
      return program.Save();
    case BatchCommand::Create:
      return program.Create();
    case BatchCommand::Preview:
      return program.Preview();
  }
  return ExitCode::Failure;
}

}  // namespace vantorium
