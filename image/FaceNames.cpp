#include "image/FaceNames.h"

#include "env/Text.h"
#include "image/LogFont.h"

#include <map>
#include <string_view>

#include <pango/pangofc-fontmap.h>

namespace vantorium::image {
namespace {

/// Keyed by the name in lower case.
using Names = std::map<std::string, std::string>;

/// Whether Pango can draw letters of the font. It leaves out fonts of other formats.
bool IsDrawable(const FcPattern* font) {
  FcChar8* format = nullptr;
  if (FcPatternGetString(font, FC_FONTFORMAT, 0, &format) != FcResultMatch) return false;
  const std::string_view name = reinterpret_cast<const char*>(format);
  return name == "TrueType" || name == "CFF";
}

/// Whether a LogFont can select the name: it must fit, and Pango takes a comma as the end of a name.
bool CanBeAskedFor(const std::string& name) {
  return name.find(',') == std::string::npos && FaceNameOf(name) == name;
}

void AddNames(Names& names, const FcPattern* font) {
  FcChar8* family = nullptr;
  for (int i = 0; FcPatternGetString(font, FC_FAMILY, i, &family) == FcResultMatch; ++i) {
    const std::string name = reinterpret_cast<const char*>(family);
    if (CanBeAskedFor(name)) names.try_emplace(env::AsciiLower(name), name);
  }
}

void AddNames(Names& names, const FcFontSet* fonts) {
  for (int i = 0; fonts != nullptr && i < fonts->nfont; ++i) {
    if (IsDrawable(fonts->fonts[i])) AddNames(names, fonts->fonts[i]);
  }
}

}  // namespace

std::vector<std::string> FaceNamesOf(PangoFontMap* map) {
  FcConfig* config = pango_fc_font_map_get_config(PANGO_FC_FONT_MAP(map));
  Names names;
  for (const FcSetName set : {FcSetSystem, FcSetApplication}) AddNames(names, FcConfigGetFonts(config, set));
  std::vector<std::string> sorted;
  for (const auto& [lower, name] : names) sorted.push_back(name);
  return sorted;
}

}  // namespace vantorium::image
