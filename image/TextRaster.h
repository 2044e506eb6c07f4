#pragma once

#include "image/LogFont.h"
#include "image/TextMask.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium {

/// How a text is laid out and what its position means. CR LF, CR and LF end a line.
enum class TextForm {
  Lines,  ///< upright, with the position at the upper left corner
  Turned  ///< each line at the font's angle about the middle of its lower edge; the first line's is at the position,
          ///< each further one's a line height straight below
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
/// replacement characters. All calls may come from several threads at once, and throw RuntimeFailure with a sentence
/// that says why no text can be drawn: no font is installed, a font file can't be read, or memory is short.
class TextRaster {
 public:
  virtual ~TextRaster() = default;

  /// The upright text's size: the widest line, and a whole line height, ascent plus descent of the font, for each line,
  /// but for the first one alone when the text is to be turned. A break at the very end begins no line. An empty text
  /// has no size.
  [[nodiscard]] virtual TextExtent Measure(const LogFont& font, std::string_view text, TextForm form) const = 0;

  /// The pixels of the text in a picture of that size. What lies outside of the picture is cut off and costs nothing.
  [[nodiscard]] virtual TextMask Draw(const LogFont& font, std::string_view text, const TextPlace& place,
                                      std::int32_t pictureWidth, std::int32_t pictureHeight) const = 0;

  /// The names that fonts of the machine are asked for by, each once and sorted, whatever the case of their letters. A
  /// font of any other name has a stand-in.
  [[nodiscard]] virtual std::vector<std::string> FaceNames() const = 0;
};

}  // namespace vantorium
