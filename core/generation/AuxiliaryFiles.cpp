#include "core/generation/AuxiliaryFiles.h"

#include "core/GalleryTargets.h"
#include "env/PathText.h"

namespace vantorium {
namespace {

constexpr Backdrop kBackdrops[] = {kTableBackdrop, kThumbnails.backdrop, kImages.backdrop};

/// A source without a folder is in the folder of the project file.
std::string Resolved(const RunState& run, const std::string& source) {
  if (!GetFilePath(source).empty()) return source;
  return WithTrailingBackslash(run.ProjectFolder) + source;
}

/// Adds the file named by a setting, unless the setting is empty.
void AddFile(std::vector<AuxiliaryFile>& files, const RunState& run, const std::string& setting,
             std::string_view fixedName, AuxiliarySpelling spelling) {
  if (setting.empty()) return;
  const std::string source = Resolved(run, setting);
  files.push_back({source, std::string(fixedName) + GetFileExtension(source), spelling});
}

void AddLinkGraphics(std::vector<AuxiliaryFile>& files, const RunState& run, const TargetFields& target,
                     AuxiliarySpelling spelling) {
  for (const PageLink& link : target.links) {
    const LinkSettings& settings = run.project.*link.settings;
    AddFile(files, run, settings.textLinkGraphic, link.graphic, spelling);
    if (link.disabledGraphic.empty()) continue;
    AddFile(files, run, settings.textLinkGraphicDisabled, link.disabledGraphic, spelling);
  }
}

PhaseResult Copy(const RunContext& context, const AuxiliaryFile& file) {
  return context.Settle(context.target.CopyAuxiliary(file.source, file.name, file.spelling));
}

}  // namespace

std::vector<AuxiliaryFile> Backdrops(const RunState& run) {
  std::vector<AuxiliaryFile> files;
  for (const auto& [source, name] : kBackdrops) AddFile(files, run, run.project.*source, name, AuxiliarySpelling::File);
  return files;
}

std::vector<AuxiliaryFile> PageLinkGraphics(const RunState& run) {
  std::vector<AuxiliaryFile> files;
  AddLinkGraphics(files, run, kThumbnails, AuxiliarySpelling::File);
  // Links between images stand on wrapper pages only.
  if (IsOn(run.project.checkImageWrapperUse)) AddLinkGraphics(files, run, kImages, AuxiliarySpelling::file);
  return files;
}

PhaseResult CopyBackdrops(const RunContext& context) {
  for (const AuxiliaryFile& file : Backdrops(context.run)) {
    if (auto end = context.Begin("Copying Backdrop Image File \"" + file.source + "\"...")) return end;
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

}  // namespace vantorium
