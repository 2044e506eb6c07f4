#include "core/generation/AuxiliaryFiles.h"

#include "core/generation/PageLinks.h"
#include "core/generation/PageParts.h"
#include "core/generation/RunMessages.h"
#include "env/PathText.h"

namespace vantorium {
namespace {

constexpr Backdrop kBackdrops[] = {kThumbnailTableBackdrop, kThumbnailPageBackdrop, kImagePageBackdrop};

/// The links in the order in which their graphics are copied.
constexpr LinkKind kLinks[] = {LinkKind::FirstThumbnailPage,
                               LinkKind::PreviousThumbnailPage,
                               LinkKind::NextThumbnailPage,
                               LinkKind::LastThumbnailPage,
                               LinkKind::FirstImage,
                               LinkKind::PreviousImage,
                               LinkKind::NextImage,
                               LinkKind::LastImage,
                               LinkKind::Index};

/// A source without a folder is in the folder of the project file.
std::string Resolved(const RunState& run, const std::string& source) {
  if (!GetFilePath(source).empty()) return source;
  return WithTrailingBackslash(run.ProjectFolder) + source;
}

/// Adds the file named by a setting, unless the setting is empty.
void AddFile(std::vector<AuxiliaryFile>& files, const RunState& run, const std::string& setting,
             std::string_view fixedName, bool isImageLink) {
  if (setting.empty()) return;
  const std::string source = Resolved(run, setting);
  files.push_back({source, std::string(fixedName) + GetFileExtension(source), isImageLink});
}

bool IsImageLink(LinkKind kind) {
  return kind <= LinkKind::Index;
}

PhaseResult Copy(const RunContext& context, const AuxiliaryFile& file) {
  Delivery delivery = context.target.CopyAuxiliary(file.source, file.name);
  if (delivery && context.run.mode != GenerationMode::Publish) delivery->text = UnableToCopyAuxiliary(file);
  return context.Settle(delivery);
}

}  // namespace

std::vector<AuxiliaryFile> Backdrops(const RunState& run) {
  std::vector<AuxiliaryFile> files;
  for (const auto& [name, source] : kBackdrops) AddFile(files, run, run.project.*source, name, /*isImageLink=*/false);
  return files;
}

std::vector<AuxiliaryFile> PageLinkGraphics(const RunState& run) {
  std::vector<AuxiliaryFile> files;
  for (const LinkKind kind : kLinks) {
    // Links between images stand on wrapper pages only.
    const bool isImageLink = IsImageLink(kind);
    if (isImageLink && run.project.checkImageWrapperUse != 1) continue;
    const auto& [field, name, nameAtDeadEnd] = GraphicsOf(kind);
    const LinkSettings& link = run.project.*field;
    AddFile(files, run, link.textLinkGraphic, name, isImageLink);
    if (!nameAtDeadEnd.empty()) AddFile(files, run, link.textLinkGraphicDisabled, nameAtDeadEnd, isImageLink);
  }
  return files;
}

/// The links between images have a message of their own, with a small letter.
std::string UnableToCopyAuxiliary(const AuxiliaryFile& file) {
  if (!file.isImageLink) return UnableToCopy(file.source);
  return "Unable to copy the file \"" + file.source + "\".";
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
