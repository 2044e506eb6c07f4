#include "core/generation/RunFolders.h"

#include "core/generation/OutputNaming.h"
#include "env/PathText.h"

namespace vantorium::generation {
namespace {

std::string ProjectFileOf(const core::Project& project) {
  if (project.IsUntitled || project.ProjectFileName.empty()) return {};
  return env::WithTrailingBackslash(project.ProjectFolder) + project.ProjectFileName;
}

}  // namespace

RunState StateOf(const core::Project& project, const RunOrder& order, const core::Ports& ports) {
  return {.project = project.settings,
          .images = project.images,
          .files = ports.files,
          .formats = ports.formats,
          .mode = order.Mode,
          .ProjectFolder = project.ProjectFolder,
          .ProjectFile = ProjectFileOf(project),
          .OutputFolder = order.OutputFolder,
          .IndexFileName = order.IndexFileName};
}

void SetFolders(RunState& run) {
  const bool preview = run.mode == GenerationMode::Preview;
  run.ImageUrlPrefix = preview ? "images/" : UrlFolder(run.project.textImageSettingsSubFolder);
  run.ThumbUrlPrefix = preview ? "thumbs/" : UrlFolder(run.project.textThumbnailImageSettingsSubFolder);
  run.LocalImagesDir = run.OutputFolder + env::WithBackslashes(run.ImageUrlPrefix);
  run.LocalThumbsDir = run.OutputFolder + env::WithBackslashes(run.ThumbUrlPrefix);
}

}  // namespace vantorium::generation
