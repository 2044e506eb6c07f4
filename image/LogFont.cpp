#include "image/LogFont.h"

#include "env/Numbers.h"

#include <cstdlib>

namespace vantorium::image {
namespace {

constexpr std::size_t kFaceNameCharacters = 31;

/// Returns the first `count` characters of a UTF-8 text, never part of a character.
std::string FirstCharacters(const std::string& text, std::size_t count) {
  std::size_t end = 0;
  for (; end < text.size(); ++end) {
    const bool begins = (static_cast<unsigned char>(text[end]) & 0xC0U) != 0x80U;
    if (begins && count-- == 0) break;
  }
  return text.substr(0, end);
}

}  // namespace

std::string FaceNameOf(const std::string& name) {
  return FirstCharacters(name, kFaceNameCharacters);
}

LogFont MakeWatermarkFont(const WatermarkSettings& settings, std::int32_t pixelsPerInch) {
  LogFont font;
  font.lfHeight = -env::MulDivRounded(settings.FontSize, pixelsPerInch, 72);
  font.lfWeight = std::abs(std::int32_t{settings.FontWeight});
  font.lfItalic = settings.FontItalic ? 1 : 0;
  font.lfUnderline = settings.FontUnderline ? 1 : 0;
  font.lfStrikeOut = settings.FontStrikeout ? 1 : 0;
  font.lfFaceName = FaceNameOf(settings.FontName);
  return font;
}

}  // namespace vantorium::image
