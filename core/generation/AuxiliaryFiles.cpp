#include "core/generation/AuxiliaryFiles.h"

#include "env/PathText.h"

#include <array>

namespace vantorium {
namespace {

struct Backdrop {
  const char* fixedName;
  std::string GalleryProject::*source;
};

constexpr std::array<Backdrop, 3> kBackdrops = {{
    {"_backdrop_thumbtable", &GalleryProject::textThumbnailsTableBackdrop},
    {"_backdrop_thumbpage", &GalleryProject::textThumbnailsPageBackdrop},
    {"_backdrop_imagepage", &GalleryProject::textImageWrapperBackdrop},
}};

/// The two graphics of a link: the normal one, and the one shown at the end of the sequence, named with `endSuffix`.
/// The Index link has only the first.
struct LinkGraphics {
  const char* fixedName;
  const char* endSuffix;
  LinkSettings GalleryProject::*link;
  AuxiliarySpelling spelling;
};

constexpr auto kBig = AuxiliarySpelling::File;
constexpr auto kSmall = AuxiliarySpelling::file;

constexpr std::array<LinkGraphics, 9> kLinkGraphics = {{
    {"_thumblink_first", "_first", &GalleryProject::ThumbnailFirstLink, kBig},
    {"_thumblink_previous", "_first", &GalleryProject::ThumbnailPreviousLink, kBig},
    {"_thumblink_next", "_last", &GalleryProject::ThumbnailNextLink, kBig},
    {"_thumblink_last", "_last", &GalleryProject::ThumbnailLastLink, kBig},
    {"_imagelink_first", "_first", &GalleryProject::ImageFirstLink, kSmall},
    {"_imagelink_previous", "_first", &GalleryProject::ImagePreviousLink, kSmall},
    {"_imagelink_next", "_last", &GalleryProject::ImageNextLink, kSmall},
    {"_imagelink_last", "_last", &GalleryProject::ImageLastLink, kSmall},
    {"_imagelink_index", nullptr, &GalleryProject::ImageIndexLink, kSmall},
}};

/// A source without a folder is in the folder of the project file.
std::string Resolved(const RunState& run, const std::string& source) {
  if (!GetFilePath(source).empty()) return source;
  return WithTrailingBackslash(run.ProjectFolder) + source;
}

/// Adds the file named by a setting, unless the setting is empty.
void AddFile(std::vector<AuxiliaryFile>& files, const RunState& run, const std::string& setting,
             const std::string& fixedName, AuxiliarySpelling spelling) {
  if (setting.empty()) return;
  const std::string source = Resolved(run, setting);
  files.push_back({source, fixedName + GetFileExtension(source), spelling});
}

/// Only wrapper pages have links between images.
bool IsUsed(const LinkGraphics& graphics, const RunState& run) {
  return graphics.spelling == kBig || run.project.checkImageWrapperUse == 1;
}

PhaseResult Copy(const RunContext& context, const AuxiliaryFile& file) {
  return context.Settle(context.target.CopyAuxiliary(file.source, file.name, file.spelling));
}

}  // namespace

std::vector<AuxiliaryFile> Backdrops(const RunState& run) {
  std::vector<AuxiliaryFile> files;
  for (const auto& [name, source] : kBackdrops) AddFile(files, run, run.project.*source, name, kBig);
  return files;
}

std::vector<AuxiliaryFile> PageLinkGraphics(const RunState& run) {
  std::vector<AuxiliaryFile> files;
  for (const LinkGraphics& graphics : kLinkGraphics) {
    if (!IsUsed(graphics, run)) continue;
    const LinkSettings& link = run.project.*graphics.link;
    AddFile(files, run, link.textLinkGraphic, graphics.fixedName, graphics.spelling);
    if (graphics.endSuffix == nullptr) continue;
    AddFile(files, run, link.textLinkGraphicDisabled, std::string(graphics.fixedName) + graphics.endSuffix,
            graphics.spelling);
  }
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
