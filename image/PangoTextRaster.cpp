#include "image/PangoTextRaster.h"

#include "image/InkedSurface.h"
#include "image/PangoFace.h"
#include "image/PangoPen.h"
#include "image/TextLines.h"

#include <algorithm>
#include <mutex>

namespace vantorium {
namespace {

/// The line hangs at the middle of its lower edge, turned about it.
void DrawTurned(PangoPen& pen, const PangoFace& face, const LogFont& font, const std::string& text) {
  const PangoLine line(face, text);
  pen.Turn(font.lfEscapement / 10.0);
  const std::int64_t half = line.Width() / 2;
  pen.MoveTo(-static_cast<double>(half), -face.LineHeight());
  pen.Draw(line, 0);
}

void DrawUpright(PangoPen& pen, const PangoFace& face, const std::vector<std::string>& lines) {
  double top = 0;
  for (const std::string& line : lines) {
    if (pen.Shows(top, face.LineHeight())) pen.Draw(PangoLine(face, line), top);
    top += face.LineHeight();
  }
}

}  // namespace

struct PangoTextRaster::Fonts {
  std::mutex mutex;
  FontMapHandle map;  // made when it is first needed

  [[nodiscard]] PangoFontMap* Map() {
    if (!map) map = MakeFontMap();
    return map.get();
  }
};

PangoTextRaster::PangoTextRaster() : fonts_(std::make_unique<Fonts>()) {}
PangoTextRaster::~PangoTextRaster() = default;

TextExtent PangoTextRaster::Measure(const LogFont& font, std::string_view text, TextForm form) const {
  const auto lines = LinesOfText(text, form);
  const std::lock_guard lock(fonts_->mutex);
  const PangoFace face(fonts_->Map(), font);
  TextExtent extent;
  for (const std::string& line : lines) {
    extent.width = std::max(extent.width, PangoLine(face, line).Width());
    extent.height += face.LineHeight();
  }
  return extent;
}

TextMask PangoTextRaster::Draw(const LogFont& font, std::string_view text, const TextPlace& place,
                               std::int32_t pictureWidth, std::int32_t pictureHeight) const {
  const auto lines = LinesOfText(text, place.form);
  const std::lock_guard lock(fonts_->mutex);
  const SurfaceHandle surface = MakeOneBitSurface(pictureWidth, pictureHeight);
  const PangoFace face(fonts_->Map(), font);
  PangoPen pen(face, font, surface.get());
  pen.MoveTo(place.x, place.y);
  if (place.form == TextForm::Lines) {
    DrawUpright(pen, face, lines);
  } else if (!lines.empty()) {
    DrawTurned(pen, face, font, lines.front());
  }
  return InkOf(surface.get());
}

}  // namespace vantorium
