#pragma once

#include "image/PangoFace.h"

#include <cstdint>

namespace vantorium::image {

/// A shaped line of text. Positions are in pixels from its left end.
class PangoLine {
 public:
  PangoLine(const PangoFace& face, const std::string& text);

  /// The sum of the letters' widths in pixels. May exceed what Pango can represent.
  [[nodiscard]] std::int64_t Width() const { return width_; }

  /// Draws the letters that may be visible between positions `from` and `to`. The left end of the baseline is the
  /// origin of `cairo`.
  void DrawLetters(cairo_t* cairo, double from, double to) const;

 private:
  const PangoFace& face_;
  GObjectHandle<PangoLayout> layout_;
  const PangoLayoutLine* line_;
  std::int64_t width_ = 0;
};

/// Draws the visible parts of lines of text on a surface.
class PangoPen {
 public:
  /// `font` says whether to underline and strike out the text.
  PangoPen(const PangoFace& face, const LogFont& font, cairo_surface_t* surface);

  /// MoveTo moves the origin, in pixels; Turn rotates the axes counterclockwise.
  void MoveTo(double x, double y) { cairo_translate(cairo_.get(), x, y); }
  void Turn(double degrees);

  /// Draws a line with its upper left corner at the origin. Throws like CheckFont and CheckDrawing.
  void Draw(const PangoLine& line);
  /// Whether anything `height` pixels high that begins `top` pixels below the origin may be visible.
  [[nodiscard]] bool Shows(double top, double height) const;

 private:
  struct Window {
    double left, top, right, bottom;
  };
  [[nodiscard]] Window Visible() const;
  void DrawStroke(PangoFace::Stroke stroke, double from, double to);

  const PangoFace& face_;
  bool underline_;
  bool strikeout_;
  double surfaceWidth_;
  double surfaceHeight_;
  CairoHandle cairo_;
};

}  // namespace vantorium::image
