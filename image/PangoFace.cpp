#include "image/PangoFace.h"

#include "env/Numbers.h"
#include "image/TextFailure.h"

#include <algorithm>
#include <cstdlib>

#include <hb-ot.h>
#include <pango/pangofc-fontmap.h>

namespace vantorium::image {
namespace {

/// Fontconfig rules that are loaded after the machine's own and so override them.
constexpr char kRules[] = R"(<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <match target="pattern">
    <test name="family" compare="eq" ignore-blanks="true"><string>Arial</string></test>
    <edit name="family" mode="prepend" binding="same"><string>Liberation Sans</string></edit>
  </match>
  <match target="font">
    <edit name="antialias" mode="assign"><bool>false</bool></edit>
    <edit name="hinting" mode="assign"><bool>true</bool></edit>
    <edit name="hintstyle" mode="assign"><const>hintfull</const></edit>
    <edit name="autohint" mode="assign"><bool>false</bool></edit>
    <edit name="rgba" mode="assign"><const>none</const></edit>
  </match>
</fontconfig>
)";

/// The em height in pixels of a font with lfHeight 0.
constexpr std::int32_t kDefaultEmHeight = 16;
/// Text this large is refused for its size long before it is drawn.
constexpr std::int32_t kLargestEmHeight = 1000000;
/// The largest em height that Pango and Cairo can draw.
constexpr std::int32_t kLargestLetters = 65000;

FontOptionsHandle SharpPixels() {
  FontOptionsHandle options(cairo_font_options_create());
  cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_NONE);
  cairo_font_options_set_subpixel_order(options.get(), CAIRO_SUBPIXEL_ORDER_DEFAULT);
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_FULL);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_ON);
  return options;
}

GObjectHandle<PangoContext> MakeContext(PangoFontMap* map) {
  GObjectHandle<PangoContext> context(pango_font_map_create_context(map));
  pango_cairo_context_set_font_options(context.get(), SharpPixels().get());
  pango_cairo_context_set_resolution(context.get(), 96);
  // Otherwise the locale's language would influence which fonts substitute for missing letters.
  pango_context_set_language(context.get(), pango_language_from_string("en"));
  return context;
}

FontDescriptionHandle Describe(const LogFont& font) {
  FontDescriptionHandle description(pango_font_description_new());
  if (!font.lfFaceName.empty()) pango_font_description_set_family(description.get(), font.lfFaceName.c_str());
  const int weight = font.lfWeight == 0 ? PANGO_WEIGHT_NORMAL : std::clamp(font.lfWeight, 100, 1000);
  pango_font_description_set_weight(description.get(), static_cast<PangoWeight>(weight));
  pango_font_description_set_style(description.get(), font.lfItalic != 0 ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
  return description;
}

/// Heights above and below the baseline, in units of 1 / `perEm` em.
struct DesignHeights {
  std::int32_t ascent;
  std::int32_t descent;
  std::int32_t perEm;
};

/// Lines of text are spaced by the font's clipping heights; fonts without these have only the typesetting heights.
DesignHeights HeightsOf(PangoFont* font) {
  hb_face_t* face = hb_font_get_face(pango_font_get_hb_font(font));
  const ShaperFontHandle shaper(hb_font_create(face));
  const auto perEm = static_cast<std::int32_t>(hb_face_get_upem(face));
  hb_position_t ascent = 0;
  hb_position_t descent = 0;
  hb_ot_metrics_get_position(shaper.get(), HB_OT_METRICS_TAG_HORIZONTAL_CLIPPING_ASCENT, &ascent);
  hb_ot_metrics_get_position(shaper.get(), HB_OT_METRICS_TAG_HORIZONTAL_CLIPPING_DESCENT, &descent);
  if (ascent + descent > 0) return {ascent, descent, perEm};
  hb_font_extents_t extents;
  if (hb_font_get_h_extents(shaper.get(), &extents)) return {extents.ascender, -extents.descender, perEm};
  return {perEm, 0, perEm};
}

std::int32_t WholePixels(int pangoUnits) {
  return PANGO_PIXELS(pangoUnits);
}

}  // namespace

// Otherwise the map would never release its configuration.
void FontMapReleaser::operator()(PangoFontMap* map) const {
  pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map), nullptr);
  g_object_unref(map);
}

FontMapHandle MakeFontMap() {
  const FcConfigHandle config(FcInitLoadConfig());
  CheckFontSettings(config != nullptr);
  FcConfigParseAndLoadFromMemory(config.get(), reinterpret_cast<const FcChar8*>(kRules), FcFalse);
  FcConfigBuildFonts(config.get());
  FontMapHandle map(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT));
  CheckFontSettings(map != nullptr);
  pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map.get()), config.get());
  return map;
}

PangoFace::PangoFace(PangoFontMap* map, const LogFont& font)
    : context_(MakeContext(map)), description_(Describe(font)) {
  SetHeights(font);
  pango_font_description_set_absolute_size(description_.get(),
                                           double{PANGO_SCALE} * std::min(emHeight_, kLargestLetters));
  metrics_.reset(pango_context_get_metrics(context_.get(), description_.get(), nullptr));
}

void PangoFace::SetHeights(const LogFont& font) {
  pango_font_description_set_absolute_size(description_.get(), double{PANGO_SCALE} * kDefaultEmHeight);
  const GObjectHandle<PangoFont> any(pango_context_load_font(context_.get(), description_.get()));
  CheckFont(any.get());
  const DesignHeights design = HeightsOf(any.get());
  emHeight_ = kDefaultEmHeight;
  if (font.lfHeight < 0) emHeight_ = std::min(-std::max(font.lfHeight, -kLargestEmHeight), kLargestEmHeight);
  if (font.lfHeight > 0) {
    const std::int32_t line = std::min(font.lfHeight, kLargestEmHeight);
    emHeight_ = std::max(1, env::MulDivRounded(line, design.perEm, design.ascent + design.descent));
  }
  ascent_ = env::MulDivRounded(design.ascent, emHeight_, design.perEm);
  descent_ = env::MulDivRounded(design.descent, emHeight_, design.perEm);
}

PangoFace::Stroke PangoFace::Underline() const {
  return {-WholePixels(pango_font_metrics_get_underline_position(metrics_.get())),
          std::max(1, WholePixels(pango_font_metrics_get_underline_thickness(metrics_.get())))};
}

PangoFace::Stroke PangoFace::Strikeout() const {
  return {-WholePixels(pango_font_metrics_get_strikethrough_position(metrics_.get())),
          std::max(1, WholePixels(pango_font_metrics_get_strikethrough_thickness(metrics_.get())))};
}

GObjectHandle<PangoLayout> PangoFace::Shape(const std::string& line) const {
  GObjectHandle<PangoLayout> layout(pango_layout_new(context_.get()));
  pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
  pango_layout_set_font_description(layout.get(), description_.get());
  pango_layout_set_text(layout.get(), line.data(), static_cast<int>(line.size()));
  return layout;
}

}  // namespace vantorium::image
