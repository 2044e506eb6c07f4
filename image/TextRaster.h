#pragma once

#include "image/LogFont.h"
#include "image/TextMask.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::image {

/// How a text is laid out and what its position means. CR LF, CR and LF end a line.
enum class TextForm {
  Lines,  ///< upright; the position is the upper left corner
  Turned  ///< each line rotated by the font's angle around the middle of its lower edge; the first line's is at the
          ///< position, each further one's a line height straight below
};

/// Where a text is drawn, in pixels from the picture's top left corner.
struct TextPlace {
  TextForm form = TextForm::Lines;
  std::int32_t x = 0;
  std::int32_t y = 0;
  bool operator==(const TextPlace&) const = default;
};

/// The size of a text in pixels.
struct TextExtent {
  std::int64_t width = 0;
  std::int64_t height = 0;
  bool operator==(const TextExtent&) const = default;
};

/// Draws text without antialiasing: a pixel either belongs to the text or does not. Text is UTF-8; invalid bytes are
/// drawn as replacement characters. Thread-safe. Any call may throw RuntimeFailure with a sentence that says why text
/// cannot be drawn: no font is installed, the font settings or a font file cannot be read, or memory is short.
class TextRaster {
 public:
  virtual ~TextRaster() = default;

  /// Returns the size of the upright text: the width of the widest line, and one line height (ascent plus descent of
  /// the font) for each line, or for the first line only if `form` is Turned. A break at the very end starts no line.
  /// An empty text has no size.
  [[nodiscard]] virtual TextExtent Measure(const LogFont& font, std::string_view text, TextForm form) const = 0;

  /// Returns the pixels of the text in a picture of that size. Parts outside the picture are clipped and cost nothing.
  [[nodiscard]] virtual TextMask Draw(const LogFont& font, std::string_view text, const TextPlace& place,
                                      std::int32_t pictureWidth, std::int32_t pictureHeight) const = 0;

  /// Returns the names of the machine's fonts, sorted and unique, ignoring ASCII case. Any other name selects a
  /// substitute font.
  [[nodiscard]] virtual std::vector<std::string> FaceNames() const = 0;
};

}  // namespace vantorium::image
