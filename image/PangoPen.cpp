#include "image/PangoPen.h"

#include "image/TextFailure.h"

#include <algorithm>
#include <numbers>

#include <hb-ot.h>

namespace vantorium::image {
namespace {

/// Letters up to this em height in pixels are drawn as bitmaps with the font's own hinting, larger ones as outlines,
/// which hinting would hardly change.
constexpr std::int32_t kLargestBitmapEm = 512;

/// How far letters and their marks may extend beyond their line, in ems.
constexpr int kReach = 3;

bool HasTable(hb_face_t* face, hb_tag_t tag) {
  const BlobHandle table(hb_face_reference_table(face, tag));
  return hb_blob_get_length(table.get()) > 0;
}

/// Whether the letters of a font are outlines and not bitmaps.
bool HasOutlines(PangoFont* font) {
  hb_face_t* face = hb_font_get_face(pango_font_get_hb_font(font));
  if (hb_ot_color_has_png(face) != 0) return false;
  return HasTable(face, HB_TAG('g', 'l', 'y', 'f')) || HasTable(face, HB_TAG('C', 'F', 'F', ' ')) ||
         HasTable(face, HB_TAG('C', 'F', 'F', '2'));
}

/// Draws a box for each letter, starting at `x` on the baseline.
void DrawBoxes(cairo_t* cairo, const PangoGlyphString& glyphs, double x, double em) {
  constexpr double kBoxHeight = 0.75;
  for (int i = 0; i < glyphs.num_glyphs; ++i) {
    const double width = static_cast<double>(glyphs.glyphs[i].geometry.width) / PANGO_SCALE;
    cairo_rectangle(cairo, x, -kBoxHeight * em, width, kBoxHeight * em);
    x += width;
  }
  cairo_fill(cairo);
}

/// Draws letters starting at `x` on the baseline. Bitmap letters would be scaled up in memory, whatever their size, so
/// large ones are drawn as boxes.
void DrawGlyphs(cairo_t* cairo, PangoFont* font, PangoGlyphString* glyphs, double x, std::int32_t em) {
  cairo_move_to(cairo, x, 0);
  if (em <= kLargestBitmapEm) {
    pango_cairo_show_glyph_string(cairo, font, glyphs);
  } else if (HasOutlines(font)) {
    pango_cairo_glyph_string_path(cairo, font, glyphs);
    cairo_fill(cairo);
  } else {
    DrawBoxes(cairo, *glyphs, x, em);
  }
}

std::int64_t WidthOf(const PangoGlyphString& glyphs) {
  std::int64_t width = 0;
  for (int i = 0; i < glyphs.num_glyphs; ++i) width += glyphs.glyphs[i].geometry.width;
  return width;
}

template <typename Visit>
void ForEachRun(const PangoLayoutLine* line, Visit visit) {
  for (const GSList* run = line->runs; run != nullptr; run = run->next) {
    visit(*static_cast<const PangoLayoutRun*>(run->data));
  }
}

/// Adjacent letters of a string, and the position of the first one in Pango units. The string still owns the letters.
struct GlyphPart {
  PangoGlyphString glyphs;
  std::int64_t start;
};

/// Returns the letters between two positions. The string's first letter is at `start`.
GlyphPart PartBetween(const PangoGlyphString& whole, std::int64_t start, double from, double to) {
  int first = 0;
  std::int64_t position = start;
  while (first < whole.num_glyphs && static_cast<double>(position + whole.glyphs[first].geometry.width) < from) {
    position += whole.glyphs[first++].geometry.width;
  }
  int end = first;
  for (std::int64_t at = position; end < whole.num_glyphs && static_cast<double>(at) <= to; ++end) {
    at += whole.glyphs[end].geometry.width;
  }
  PangoGlyphString part = whole;
  part.glyphs += first;
  part.log_clusters += first;
  part.num_glyphs = end - first;
  return {part, position};
}

}  // namespace

PangoLine::PangoLine(const PangoFace& face, const std::string& text)
    : face_(face), layout_(face.Shape(text)), line_(pango_layout_get_line_readonly(layout_.get(), 0)) {
  std::int64_t width = 0;
  ForEachRun(line_, [&width](const PangoLayoutRun& run) { width += WidthOf(*run.glyphs); });
  width_ = (width + PANGO_SCALE - 1) / PANGO_SCALE;
}

void PangoLine::DrawLetters(cairo_t* cairo, double from, double to) const {
  const double reach = static_cast<double>(kReach) * face_.EmHeight();
  std::int64_t start = 0;
  ForEachRun(line_, [&](const PangoLayoutRun& run) {
    GlyphPart part = PartBetween(*run.glyphs, start, (from - reach) * PANGO_SCALE, (to + reach) * PANGO_SCALE);
    if (part.glyphs.num_glyphs > 0) {
      CheckFont(run.item->analysis.font);
      DrawGlyphs(cairo, run.item->analysis.font, &part.glyphs, static_cast<double>(part.start) / PANGO_SCALE,
                 face_.EmHeight());
    }
    start += WidthOf(*run.glyphs);
  });
}

PangoPen::PangoPen(const PangoFace& face, const LogFont& font, cairo_surface_t* surface)
    : face_(face),
      underline_(font.lfUnderline != 0),
      strikeout_(font.lfStrikeOut != 0),
      surfaceWidth_(cairo_image_surface_get_width(surface)),
      surfaceHeight_(cairo_image_surface_get_height(surface)),
      cairo_(cairo_create(surface)) {
  cairo_set_antialias(cairo_.get(), CAIRO_ANTIALIAS_NONE);
}

void PangoPen::Turn(double degrees) {
  cairo_rotate(cairo_.get(), -degrees * std::numbers::pi / 180);
}

void PangoPen::Draw(const PangoLine& line) {
  cairo_save(cairo_.get());
  cairo_translate(cairo_.get(), 0, face_.Ascent());
  const Window window = Visible();
  line.DrawLetters(cairo_.get(), window.left, window.right);
  const double from = std::max(0.0, window.left);
  const double to = std::min(static_cast<double>(line.Width()), window.right);
  if (underline_) DrawStroke(face_.Underline(), from, to);
  if (strikeout_) DrawStroke(face_.Strikeout(), from, to);
  cairo_restore(cairo_.get());
  CheckDrawing(cairo_status(cairo_.get()));
}

bool PangoPen::Shows(double top, double height) const {
  const double reach = static_cast<double>(kReach) * face_.EmHeight();
  const Window window = Visible();
  return top - reach <= window.bottom && top + height + reach >= window.top;
}

PangoPen::Window PangoPen::Visible() const {
  Window window = {0, 0, 0, 0};
  bool first = true;
  for (double x : {0.0, surfaceWidth_}) {
    for (double y : {0.0, surfaceHeight_}) {
      double u = x;
      double v = y;
      cairo_device_to_user(cairo_.get(), &u, &v);
      window = first ? Window{u, v, u, v}
                     : Window{std::min(window.left, u), std::min(window.top, v), std::max(window.right, u),
                              std::max(window.bottom, v)};
      first = false;
    }
  }
  return window;
}

void PangoPen::DrawStroke(PangoFace::Stroke stroke, double from, double to) {
  if (from >= to) return;
  cairo_rectangle(cairo_.get(), from, stroke.top, to - from, stroke.thickness);
  cairo_fill(cairo_.get());
}

}  // namespace vantorium::image
