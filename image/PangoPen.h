#pragma once

#include "image/PangoFace.h"

#include <cstdint>

namespace vantorium {

/// A shaped line of text. Positions in it count from its left end, in pixels.
class PangoLine {
 public:
  PangoLine(const PangoFace& face, const std::string& text);

  /// The sum of the letters' widths, in pixels. It may exceed what the libraries can count.
  [[nodiscard]] std::int64_t Width() const { return width_; }

  /// Draws the letters that may show between the positions `from` and `to`. The left end of the base line is the origin
  /// of `cairo`.
  void DrawLetters(cairo_t* cairo, double from, double to) const;

 private:
  const PangoFace& face_;
  GObjectHandle<PangoLayout> layout_;
  const PangoLayoutLine* line_;
  std::int64_t width_ = 0;
};

/// Draws lines of text on a surface, whichever of their parts show there.
class PangoPen {
 public:
  /// `font` says which strokes go with the letters.
  PangoPen(const PangoFace& face, const LogFont& font, cairo_surface_t* surface);

  /// Moves the origin, in pixels, and turns the axes counterclockwise.
  void MoveTo(double x, double y) { cairo_translate(cairo_.get(), x, y); }
  void Turn(double degrees);

  /// Draws a line with its upper left corner at the origin. Throws as CheckFont and CheckDrawing.
  void Draw(const PangoLine& line);
  /// Whether anything `height` pixels high and `top` pixels below the origin may show.
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

}  // namespace vantorium
