#include "core/generation/GenerateGallery.h"

#include "core/ProjectEditor.h"
#include "core/generation/AuxiliaryFiles.h"
#include "core/generation/CollectImages.h"
#include "core/generation/LocalTarget.h"
#include "core/generation/OutputNaming.h"
#include "core/generation/PagePhases.h"
#include "core/generation/PictureRecipes.h"
#include "core/generation/ProducePictures.h"
#include "core/generation/ProtectSources.h"
#include "core/generation/RunContext.h"
#include "core/generation/ServerPhases.h"
#include "core/generation/ServerTarget.h"
#include "env/NeighbourFile.h"
#include "env/PathText.h"
#include "env/RuntimeFailure.h"

#include <array>
#include <exception>
#include <new>

namespace vantorium {
namespace {

struct ModeTexts {
  const char* text1;
  const char* caption;
};

/// Indexed by GenerationMode.
constexpr std::array<ModeTexts, 4> kModeTexts = {{
    {"Please wait while the Gallery is being created...", "Creating Gallery"},
    {"Please wait while the Gallery is prepared for Preview...", "Preparing Gallery for Preview"},
    {"Please wait while the Gallery is being published...", "Publishing Gallery"},
    {"Please wait while the Folder is being uploaded...", "Uploading Folder"},
}};

bool SendsToServer(GenerationMode mode) {
  return mode == GenerationMode::Publish || mode == GenerationMode::Upload;
}

PhaseResult StampAndSetPaths(const RunContext& context) {
  RunState& run = context.run;
  const bool preview = run.mode == GenerationMode::Preview;
  run.GalleryCreationTime = context.clock.Now();
  run.ImageUrlPrefix = preview ? "images/" : UrlFolder(run.project.textImageSettingsSubFolder);
  run.ThumbUrlPrefix = preview ? "thumbs/" : UrlFolder(run.project.textThumbnailImageSettingsSubFolder);
  run.LocalImagesDir = run.OutputFolder + WithBackslashes(run.ImageUrlPrefix);
  run.LocalThumbsDir = run.OutputFolder + WithBackslashes(run.ThumbUrlPrefix);
  return kGoOn;
}

/// Removes the unfinished files of a killed run, which would otherwise stay forever.
void TidyFolders(const RunState& run) {
  for (const std::string& folder : {run.OutputFolder, run.LocalImagesDir, run.LocalThumbsDir}) {
    if (const auto native = run.files.Paths().ToNative(folder)) RemoveAbandonedNeighbours(*native);
  }
}

PhaseResult MakeFolders(const RunContext& context) {
  if (auto end = context.Begin("Creating Directories...")) return end;
  auto end = context.Settle(context.target.MakeFolders());
  if (!end) TidyFolders(context.run);
  return end;
}

PhaseResult PrepareWatermarksOfRun(const RunContext& context) {
  PrepareWatermarks(context.run, context.screen, context.texts);
  return kGoOn;
}

PhaseResult ProduceUnlessPreview(const RunContext& context) {
  if (context.run.mode == GenerationMode::Preview) return kGoOn;
  return ProducePictures(context);
}

PhaseResult EndWithoutPages(const RunContext& context) {
  if (!context.arguments.CreateHTML) return RunEnd::Success;
  return kGoOn;
}

PhaseResult Succeed(const RunContext& /*context*/) {
  return RunEnd::Success;
}

using Phase = PhaseResult (*)(const RunContext&);

/// The phases of a run, in their fixed order. The first phase that returns an end ends the run.
constexpr Phase kPhases[] = {
    OpenServerSession,       //
    UploadFolderAndEnd,      //
    StampAndSetPaths,        //
    CollectImages,           //
    MakeFolders,             //
    PrepareWatermarksOfRun,  //
    ProtectSources,          //
    ProduceUnlessPreview,    //
    CopyBackdrops,           //
    CopyLinkGraphics,        //
    EndWithoutPages,         //
    WriteIndexPage,          //
    WriteThumbnailPages,     //
    WriteWrapperPages,       //
    Succeed,
};

RunEnd GoThroughPhases(const RunContext& context) {
  for (const Phase phase : kPhases) {
    if (const auto end = phase(context)) return *end;
  }
  return RunEnd::Success;
}

RunEnd FailUnexpectedly(const RunContext& context, const std::string& description, std::int32_t number) {
  context.boxes.Critical("Failure", "An Error has occurred during Creation of this Gallery:\r\r" + description +
                                        "\r\rError #" + std::to_string(number));
  return RunEnd::Failure;
}

/// Runs the phases and turns every unexpected exception, the program's own or a library's, into a failure.
RunEnd RunTrapped(const RunContext& context) {
  constexpr std::int32_t kOutOfMemory = 7;
  constexpr std::int32_t kInternal = 51;
  try {
    return GoThroughPhases(context);
  } catch (const RuntimeFailure& failure) {
    return FailUnexpectedly(context, failure.Description(), failure.Number());
  } catch (const std::bad_alloc&) {
    return FailUnexpectedly(context, "Out of memory", kOutOfMemory);
  } catch (const std::exception& failure) {
    return FailUnexpectedly(context, failure.what(), kInternal);
  } catch (...) {
    return FailUnexpectedly(context, "Internal error", kInternal);
  }
}

/// Maximum of the progress bar: for each image, one step for collecting its information and one for each phase that
/// processes it.
std::int32_t ProgressMaximum(const Project& project, const RunArguments& arguments) {
  if (arguments.Mode == GenerationMode::Upload) return 100;
  const bool wrappers = IsOn(project.settings.checkImageWrapperUse);
  const int phases = arguments.Mode == GenerationMode::Preview
                         ? 1 + (wrappers ? 1 : 0)
                         : int{arguments.CreateImages} + int{arguments.CreateThumbnails} + int{arguments.CreateHTML} +
                               (wrappers && arguments.CreateHTML ? 1 : 0);
  return static_cast<std::int32_t>(project.images.Count()) * (phases + 1);
}

std::unique_ptr<ProgressWindow> OpenProgressWindow(const Project& project, const RunArguments& arguments,
                                                   const RunEnvironment& environment) {
  auto progress = environment.host.CreateProgressWindow();
  progress->LogToFile = SendsToServer(arguments.Mode);
  progress->SetMax(ProgressMaximum(project, arguments));
  progress->SetProgress(0);
  progress->Show();
  const ModeTexts& texts = kModeTexts.at(static_cast<std::size_t>(arguments.Mode));
  progress->SetText1(texts.text1);
  progress->SetText2("");
  progress->SetText3("", /*append=*/false);
  progress->SetCaption(texts.caption);
  environment.loop.Turn();
  return progress;
}

void EndInSuccess(const RunEnvironment& environment, ProgressWindow& progress) {
  progress.SetProgress(progress.GetMax());
  environment.host.EnableMainWindow(true);
  environment.host.ShowBusyPointer(false);
  progress.ShowBusyPointer(false);
}

/// The window stays open until the user closes it. The messages in its log box go to the log.
void EndInFailure(const RunEnvironment& environment, ProgressWindow& progress) {
  progress.OfferClose();
  environment.host.ShowStatus("");
  progress.WriteLog(progress.LogBoxText());
  progress.SetText3("", /*append=*/false);
  environment.host.ShowBusyPointer(false);
  progress.ShowBusyPointer(false);
  environment.shell.Beep(BeepKind::Warning);
  while (!progress.CloseRequested) environment.loop.Wait();
  environment.host.EnableMainWindow(true);
}

void EndInCancel(const RunEnvironment& environment) {
  environment.boxes.Show(BoxKind::Exclamation, BoxButtons::Ok, "Creation cancelled",
                         "The User has cancelled Creation of the Gallery");
  environment.host.ShowStatus("");
  environment.host.ShowBusyPointer(false);
  environment.host.EnableMainWindow(true);
}

void FinishRun(RunEnd end, const RunEnvironment& environment, ProgressWindow& progress) {
  switch (end) {
    case RunEnd::Failure:
      return EndInFailure(environment, progress);
    case RunEnd::Cancelled:
      return EndInCancel(environment);
    case RunEnd::Success:
    case RunEnd::NotStarted:
      return EndInSuccess(environment, progress);
  }
}

/// Makes the FTP client log to the progress window during a run. At the end destroys the window, then closes the
/// connection if it is still open.
class ServerUse {
 public:
  ServerUse(mFTP* ftp, std::unique_ptr<ProgressWindow>& progress) : ftp_(ftp), progress_(progress) {
    if (ftp_ != nullptr) ftp_->FTPProgress = progress_.get();
  }
  ~ServerUse() {
    if (ftp_ != nullptr) ftp_->FTPProgress = nullptr;
    progress_.reset();
    if (ftp_ != nullptr && ftp_->IsConnected()) ftp_->Disconnect();
  }
  ServerUse(const ServerUse&) = delete;
  ServerUse& operator=(const ServerUse&) = delete;

 private:
  mFTP* ftp_;
  std::unique_ptr<ProgressWindow>& progress_;
};

std::unique_ptr<GalleryTarget> TargetOf(const RunState& run, const RunArguments& arguments, mFTP* ftp) {
  if (arguments.Mode == GenerationMode::Publish) return std::make_unique<ServerTarget>(run, arguments, *ftp);
  return std::make_unique<LocalTarget>(run);
}

std::string ProjectFileOf(const Project& project) {
  if (project.IsUntitled || project.ProjectFileName.empty()) return {};
  return WithTrailingBackslash(project.ProjectFolder) + project.ProjectFileName;
}

/// Sizes in percent never appear on a page, although the option can be set.
void ForceOffSizesInPercent(Project& project) {
  constexpr auto kField = &GalleryProject::checkImageWrapperImageSizesInPercent;
  if (!IsOff(project.settings.*kField)) ProjectEditor(project.settings, project.IsModified).Set(kField, kOff);
}

}  // namespace

RunEnd GenerateGallery(Project& project, const RunArguments& arguments, const RunEnvironment& environment) {
  ForceOffSizesInPercent(project);
  environment.host.ShowBusyPointer(true);
  environment.host.EnableMainWindow(false);
  auto progress = OpenProgressWindow(project, arguments, environment);
  const ServerUse server(environment.ftp, progress);

  RunState run{.project = project.settings,
               .images = project.images,
               .files = environment.files,
               .formats = environment.formats,
               .mode = arguments.Mode,
               .ProjectFolder = project.ProjectFolder,
               .ProjectFile = ProjectFileOf(project),
               .OutputFolder = arguments.OutputFolder,
               .IndexFileName = arguments.IndexFileName};
  mFTP* const ftp = SendsToServer(arguments.Mode) ? environment.ftp : nullptr;
  const auto target = TargetOf(run, arguments, ftp);
  const RunContext context{.run = run,
                           .arguments = arguments,
                           .host = environment.host,
                           .boxes = environment.boxes,
                           .loop = environment.loop,
                           .clock = environment.clock,
                           .cancel = environment.cancel,
                           .progress = *progress,
                           .target = *target,
                           .screen = environment.screen,
                           .texts = environment.texts,
                           .ftp = ftp,
                           .jobs = environment.jobs};
  const RunEnd end = RunTrapped(context);
  FinishRun(end, environment, *progress);
  return end;
}

}  // namespace vantorium
