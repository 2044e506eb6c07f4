#include "core/generation/AuxiliaryFiles.h"

#include "core/GalleryTargets.h"
#include "core/generation/RunMessages.h"
#include "env/PathText.h"

namespace vantorium::generation {
namespace {

constexpr core::Backdrop kBackdrops[] = {core::kTableBackdrop, core::kThumbnails.backdrop, core::kImages.backdrop};

/// A source without a folder is in the folder of the project file.
std::string Resolved(const RunState& run, const std::string& source) {
  if (!env::GetFilePath(source).empty()) return source;
  return env::WithTrailingBackslash(run.ProjectFolder) + source;
}

/// Adds the file named by a setting, unless the setting is empty.
void AddFile(std::vector<AuxiliaryFile>& files, const RunState& run, const std::string& setting,
             std::string_view fixedName, bool isImageLink) {
  if (setting.empty()) return;
  const std::string source = Resolved(run, setting);
  files.push_back({source, std::string(fixedName) + env::GetFileExtension(source), isImageLink});
}

void AddLinkGraphics(std::vector<AuxiliaryFile>& files, const RunState& run, const core::TargetFields& target,
                     bool areImageLinks) {
  for (const core::PageLink& link : target.links) {
    const core::LinkSettings& settings = run.project.*link.settings;
    AddFile(files, run, settings.textLinkGraphic, link.graphic, areImageLinks);
    if (link.disabledGraphic.empty()) continue;
    AddFile(files, run, settings.textLinkGraphicDisabled, link.disabledGraphic, areImageLinks);
  }
}

PhaseResult Copy(const RunContext& context, const AuxiliaryFile& file) {
  Delivery delivery = context.target.CopyAuxiliary(file.source, file.name);
  if (delivery && context.run.mode != GenerationMode::Publish)
    delivery->text = UnableToCopyAuxiliary(context.run, file);
  return context.Settle(delivery);
}

}  // namespace

std::vector<AuxiliaryFile> Backdrops(const RunState& run) {
  std::vector<AuxiliaryFile> files;
  for (const auto& [source, name] : kBackdrops) AddFile(files, run, run.project.*source, name, /*isImageLink=*/false);
  return files;
}

std::vector<AuxiliaryFile> PageLinkGraphics(const RunState& run) {
  std::vector<AuxiliaryFile> files;
  AddLinkGraphics(files, run, core::kThumbnails, /*areImageLinks=*/false);
  // Links between images are on wrapper pages only.
  if (core::IsOn(run.project.checkImageWrapperUse)) AddLinkGraphics(files, run, core::kImages, /*areImageLinks=*/true);
  return files;
}

/// The links between images have a message of their own, with a small letter.
std::string UnableToCopyAuxiliary(const RunState& run, const AuxiliaryFile& file) {
  if (!file.isImageLink) return UnableToCopy(run.Shown(file.source));
  return "Unable to copy the file \"" + run.Shown(file.source) + "\".";
}

PhaseResult CopyBackdrops(const RunContext& context) {
  for (const AuxiliaryFile& file : Backdrops(context.run)) {
    if (auto end = context.Begin("Copying Backdrop Image File \"" + context.run.Shown(file.source) + "\"..."))
      return end;
    if (auto end = Copy(context, file)) return end;
  }
  return kGoOn;
}

PhaseResult CopyLinkGraphics(const RunContext& context) {
  if (auto end = context.Begin("Copying Page Link Image Files...")) return end;
  for (const AuxiliaryFile& file : PageLinkGraphics(context.run)) {
    if (auto end = Copy(context, file)) return end;
  }
  return kGoOn;
}

}  // namespace vantorium::generation
