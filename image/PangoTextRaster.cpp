#include "image/PangoTextRaster.h"

#include "image/FaceNames.h"
#include "image/InkedSurface.h"
#include "image/PangoFace.h"
#include "image/PangoPen.h"
#include "image/TextFailure.h"
#include "image/TextLines.h"

#include <algorithm>
#include <mutex>

namespace vantorium::image {
namespace {

/// Draws a line rotated around the middle of its lower edge, which is at the pen's origin.
void DrawTurned(PangoPen& pen, const PangoFace& face, double degrees, const std::string& text) {
  pen.Turn(degrees);
  if (!pen.Shows(-face.LineHeight(), face.LineHeight())) return;
  const PangoLine line(face, text);
  const std::int64_t half = line.Width() / 2;
  pen.MoveTo(-static_cast<double>(half), -face.LineHeight());
  pen.Draw(line);
}

void DrawUpright(PangoPen& pen, const PangoFace& face, const std::string& text) {
  if (pen.Shows(0, face.LineHeight())) pen.Draw(PangoLine(face, text));
}

}  // namespace

struct PangoTextRaster::Fonts {
  std::mutex mutex;
  FontMapHandle map;  // created on first use

  [[nodiscard]] PangoFontMap* Map() {
    CheckThreadsToSpare();
    if (!map) map = MakeFontMap();
    return map.get();
  }
};

PangoTextRaster::PangoTextRaster() : fonts_(std::make_unique<Fonts>()) {}
PangoTextRaster::~PangoTextRaster() = default;

TextExtent PangoTextRaster::Measure(const LogFont& font, std::string_view text, TextForm form) const {
  const auto lines = LinesOfText(text);
  if (lines.empty()) return {};
  const std::lock_guard lock(fonts_->mutex);
  const PangoFace face(fonts_->Map(), font);
  TextExtent extent;
  for (const std::string& line : lines) {
    extent.width = std::max(extent.width, PangoLine(face, line).Width());
    extent.height += face.LineHeight();
  }
  if (form == TextForm::Turned) extent.height = std::min<std::int64_t>(extent.height, face.LineHeight());
  return extent;
}

TextMask PangoTextRaster::Draw(const LogFont& font, std::string_view text, const TextPlace& place,
                               std::int32_t pictureWidth, std::int32_t pictureHeight) const {
  const auto lines = LinesOfText(text);
  if (lines.empty() || pictureWidth < 1 || pictureHeight < 1) return {};
  const std::lock_guard lock(fonts_->mutex);
  const SurfaceHandle surface = MakeOneBitSurface(pictureWidth, pictureHeight);
  CheckDrawing(cairo_surface_status(surface.get()));
  const PangoFace face(fonts_->Map(), font);
  double y = place.y;
  for (const std::string& line : lines) {
    PangoPen pen(face, font, surface.get());
    pen.MoveTo(place.x, y);
    if (place.form == TextForm::Lines) {
      DrawUpright(pen, face, line);
    } else {
      DrawTurned(pen, face, font.lfEscapement / 10.0, line);
    }
    y += face.LineHeight();
  }
  return InkOf(surface.get());
}

std::vector<std::string> PangoTextRaster::FaceNames() const {
  const std::lock_guard lock(fonts_->mutex);
  return FaceNamesOf(fonts_->Map());
}

}  // namespace vantorium::image
