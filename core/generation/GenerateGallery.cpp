#include "core/generation/GenerateGallery.h"

#include "core/ProjectEditor.h"
#include "core/generation/AuxiliaryFiles.h"
#include "core/generation/CollectImages.h"
#include "core/generation/LocalTarget.h"
#include "core/generation/PagePhases.h"
#include "core/generation/PictureRecipes.h"
#include "core/generation/ProducePictures.h"
#include "core/generation/ProtectSources.h"
#include "core/generation/RunContext.h"
#include "core/generation/RunFolders.h"
#include "core/generation/RunWindows.h"
#include "core/generation/ServerPhases.h"
#include "core/generation/ServerTarget.h"
#include "core/generation/changes/Changes.h"
#include "core/generation/changes/ChangesTarget.h"
#include "env/NeighbourFile.h"
#include "env/RuntimeFailure.h"

#include <array>
#include <exception>
#include <new>
#include <span>

namespace vantorium::generation {
namespace {

PhaseResult StampAndSetPaths(const RunContext& context) {
  RunState& run = context.run;
  run.GalleryCreationTime = context.environment.clock.Now();
  SetFolders(run);
  return kGoOn;
}

/// Removes the unfinished files of a killed run, which would otherwise stay forever.
void TidyFolders(const RunState& run) {
  for (const std::string& folder : {run.OutputFolder, run.LocalImagesDir, run.LocalThumbsDir}) {
    if (const auto native = run.files.Paths().ToNative(folder)) env::RemoveAbandonedNeighbours(*native);
  }
}

PhaseResult MakeFolders(const RunContext& context) {
  if (auto end = context.Begin("Creating Directories...")) return end;
  auto end = context.Settle(context.target.MakeFolders());
  if (!end) TidyFolders(context.run);
  return end;
}

PhaseResult PrepareWatermarksOfRun(const RunContext& context) {
  PrepareWatermarks(context.run, context.environment.screen, context.environment.texts);
  return kGoOn;
}

PhaseResult EndWithoutPages(const RunContext& context) {
  if (!context.order.CreateHTML) return RunEnd::Success;
  return kGoOn;
}

using Phase = PhaseResult (*)(const RunContext&);
using Phases = std::span<const Phase>;

constexpr std::array kPublishPhases = {
    OpenServerSession,       //
    StampAndSetPaths,        //
    CollectImages,           //
    MakeFolders,             //
    PrepareWatermarksOfRun,  //
    ProtectSources,          //
    ProducePictures,         //
    CopyBackdrops,           //
    CopyLinkGraphics,        //
    EndWithoutPages,         //
    WriteIndexPage,          //
    WriteThumbnailPages,     //
    WriteWrapperPages,
};
/// Publish without the server.
constexpr Phases kCreatePhases = Phases(kPublishPhases).subspan(1);
/// The pages lead to the source files, so no pictures are made.
constexpr std::array kPreviewPhases = {
    StampAndSetPaths,        //
    CollectImages,           //
    MakeFolders,             //
    PrepareWatermarksOfRun,  //
    ProtectSources,          //
    CopyBackdrops,           //
    CopyLinkGraphics,        //
    EndWithoutPages,         //
    WriteIndexPage,          //
    WriteThumbnailPages,     //
    WriteWrapperPages,
};
constexpr std::array kUploadPhases = {OpenServerSession, SendFolder};

/// The phases of each GenerationMode, in their fixed order. The first phase that returns an end ends the run.
constexpr std::array<Phases, 4> kPhases = {kCreatePhases, kPreviewPhases, kPublishPhases, kUploadPhases};

RunEnd GoThroughPhases(const RunContext& context) {
  for (const Phase phase : kPhases.at(static_cast<std::size_t>(context.order.Mode))) {
    if (const auto end = phase(context)) return *end;
  }
  return RunEnd::Success;
}

RunEnd GoThroughAll(const RunContext& context) {
  const RunEnd end = GoThroughPhases(context);
  if (end != RunEnd::Success || context.changes == nullptr) return end;
  return context.changes->FindUnused(context).value_or(RunEnd::Success);
}

RunEnd FailUnexpectedly(const RunContext& context, const std::string& description, std::int32_t number) {
  context.environment.boxes.Critical("Failure", "An Error has occurred during Creation of this Gallery:\r\r" +
                                                    description + "\r\rError #" + std::to_string(number));
  return RunEnd::Failure;
}

/// Runs the phases and turns every unexpected exception, the program's own or a library's, into a failure.
RunEnd RunTrapped(const RunContext& context) {
  constexpr std::int32_t kOutOfMemory = 7;
  constexpr std::int32_t kInternal = 51;
  try {
    return GoThroughAll(context);
  } catch (const env::RuntimeFailure& failure) {
    return FailUnexpectedly(context, failure.Description(), failure.Number());
  } catch (const std::bad_alloc&) {
    return FailUnexpectedly(context, "Out of memory", kOutOfMemory);
  } catch (const std::exception& failure) {
    return FailUnexpectedly(context, failure.what(), kInternal);
  } catch (...) {
    return FailUnexpectedly(context, "Internal error", kInternal);
  }
}

std::unique_ptr<GalleryTarget> PlainTargetOf(const RunState& run, const RunOrder& order, publish::mFTP* ftp) {
  if (order.Mode == GenerationMode::Publish) return std::make_unique<ServerTarget>(run, order, *ftp);
  return std::make_unique<LocalTarget>(run);
}

std::unique_ptr<GalleryTarget> TargetOf(const RunState& run, const RunOrder& order, publish::mFTP* ftp,
                                        Changes* changes) {
  auto target = PlainTargetOf(run, order, ftp);
  if (changes == nullptr) return target;
  return std::make_unique<ChangesTarget>(run, order, changes->Known(), std::move(target));
}

/// Runs to one end and keeps the record of a run with OnlyChanges.
RunEnd RunToEnd(RunState& run, const RunOrder& order, const RunEnvironment& environment,
                publish::ProgressWindow& progress) {
  std::optional<Changes> changes;
  if (order.OnlyChanges) {
    changes.emplace(run, order, environment);
  } else {
    ForgetServer(order, environment);
  }
  Changes* const kept = changes ? &*changes : nullptr;
  const auto target = TargetOf(run, order, environment.ftp, kept);
  const RunEnd end = RunTrapped({run, order, environment, progress, *target, kept});
  if (changes) changes->Save();
  return end;
}

/// Sizes in percent never appear on a page, although the option can be set.
void ForceOffSizesInPercent(core::Project& project) {
  constexpr auto kField = &core::GalleryProject::checkImageWrapperImageSizesInPercent;
  if (!core::IsOff(project.settings.*kField))
    core::ProjectEditor(project.settings, project.IsModified).Set(kField, core::kOff);
}

}  // namespace

RunEnd GenerateGallery(core::Project& project, const RunOrder& order, const RunEnvironment& environment) {
  ForceOffSizesInPercent(project);
  RunWindows windows(project, order, environment);
  RunState run = StateOf(project, order, environment);
  const RunEnd end = RunToEnd(run, order, environment, windows.Progress());
  windows.ShowEnd(end);
  return end;
}

}  // namespace vantorium::generation
