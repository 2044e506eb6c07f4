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

/// A link's two graphics: the normal one, and the one for the end of the sequence under the name with `endSuffix`.
struct LinkGraphics {
  const char* fixedName;
  const char* endSuffix;
  LinkSettings GalleryProject::*link;
  AuxiliarySpelling spelling;
};

constexpr auto kBig = AuxiliarySpelling::File;
constexpr auto kSmall = AuxiliarySpelling::file;

constexpr std::array<LinkGraphics, 8> kLinkGraphics = {{
    {"_thumblink_first", "_first", &GalleryProject::ThumbnailFirstLink, kBig},
    {"_thumblink_previous", "_first", &GalleryProject::ThumbnailPreviousLink, kBig},
    {"_thumblink_next", "_last", &GalleryProject::ThumbnailNextLink, kBig},
    {"_thumblink_last", "_last", &GalleryProject::ThumbnailLastLink, kBig},
    {"_imagelink_first", "_first", &GalleryProject::ImageFirstLink, kSmall},
    {"_imagelink_previous", "_first", &GalleryProject::ImagePreviousLink, kSmall},
    {"_imagelink_next", "_last", &GalleryProject::ImageNextLink, kSmall},
    {"_imagelink_last", "_last", &GalleryProject::ImageLastLink, kSmall},
}};

/// A source without a folder lies beside the project file.
std::string Resolved(const RunContext& context, const std::string& source) {
  if (!GetFilePath(source).empty()) return source;
  return WithTrailingBackslash(context.run.ProjectFolder) + source;
}

PhaseResult CopyAuxiliaryFile(const RunContext& context, const std::string& source, const std::string& fixedName,
                              AuxiliarySpelling spelling) {
  const std::string target = fixedName + GetFileExtension(source);
  return context.Settle(context.target.CopyAuxiliary(source, target, spelling));
}

PhaseResult CopyGraphic(const RunContext& context, const std::string& setting, const std::string& fixedName,
                        AuxiliarySpelling spelling) {
  if (setting.empty()) return kGoOn;
  return CopyAuxiliaryFile(context, Resolved(context, setting), fixedName, spelling);
}

PhaseResult CopyBackdrop(const RunContext& context, const Backdrop& backdrop) {
  const std::string& setting = context.run.project.*backdrop.source;
  if (setting.empty()) return kGoOn;
  const std::string source = Resolved(context, setting);
  if (auto end = context.Begin("Copying Backdrop Image File \"" + source + "\"...")) return end;
  return CopyAuxiliaryFile(context, source, backdrop.fixedName, kBig);
}

}  // namespace

PhaseResult CopyBackdrops(const RunContext& context) {
  for (const Backdrop& backdrop : kBackdrops) {
    if (auto end = CopyBackdrop(context, backdrop)) return end;
  }
  return kGoOn;
}

PhaseResult CopyLinkGraphics(const RunContext& context) {
  const GalleryProject& project = context.run.project;
  if (auto end = context.Begin("Copying Page Link Image Files...")) return end;
  for (const auto& [name, endSuffix, link, spelling] : kLinkGraphics) {
    const LinkSettings& settings = project.*link;
    if (auto end = CopyGraphic(context, settings.textLinkGraphic, name, spelling)) return end;
    if (auto end = CopyGraphic(context, settings.textLinkGraphicDisabled, std::string(name) + endSuffix, spelling)) {
      return end;
    }
  }
  return CopyGraphic(context, project.ImageIndexLink.textLinkGraphic, "_imagelink_index", kSmall);
}

}  // namespace vantorium
