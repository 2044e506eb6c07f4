#pragma once

#include "image/LogFont.h"
#include "image/TextMask.h"

#include <cstdint>
#include <string_view>

namespace vantorium {

/// How a text is laid out and what its position means.
enum class TextForm {
  Lines,  ///< CR LF, CR and LF end a line; upright, with the position at the upper left corner
  Line    ///< one line with blanks for the breaks, at the font's angle about the middle of its lower edge
};

/// Where a text is drawn, in pixels from the picture's top left corner.
struct TextPlace {
  TextForm form = TextForm::Lines;
  std::int32_t x = 0;
  std::int32_t y = 0;
  bool operator==(const TextPlace&) const = default;
};

/// Pixels that a text takes up.
struct TextExtent {
  std::int64_t width = 0;
  std::int64_t height = 0;
  bool operator==(const TextExtent&) const = default;
};

/// Draws texts without antialiasing: a pixel is of the text or it is not. Texts are UTF-8; what isn't comes out as
/// replacement characters. All calls may come from several threads at once.
class TextRaster {
 public:
  virtual ~TextRaster() = default;

  /// The upright text's size: the widest line, and a whole line height, ascent plus descent of the font, for each line.
  /// A break at the very end begins no line. An empty text has no size.
  [[nodiscard]] virtual TextExtent Measure(const LogFont& font, std::string_view text, TextForm form) const = 0;

  /// The pixels of the text in a picture of that size. What lies outside of the picture is cut off and costs nothing.
  [[nodiscard]] virtual TextMask Draw(const LogFont& font, std::string_view text, const TextPlace& place,
                                      std::int32_t pictureWidth, std::int32_t pictureHeight) const = 0;
};

}  // namespace vantorium
