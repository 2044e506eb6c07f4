#include "core/file/XmlText.h"

#include <array>

namespace vantorium::core {
namespace {

/// Fast path: nearly all bytes of nearly all texts need no decoding.
bool IsPlain(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value >= 0x20 && value < 0x80;
}

struct Character {
  std::int32_t codePoint;  // -1 if no UTF-8 character begins here
  std::size_t length;      // in bytes
};

std::size_t LengthByFirstByte(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

/// Returns the first character of a text that is not empty.
Character FrontOf(std::string_view text) {
  constexpr Character kNone = {-1, 1};
  constexpr std::array<std::int32_t, 5> kFirstBits = {0, 0x7F, 0x1F, 0x0F, 0x07};
  constexpr std::array<std::int32_t, 5> kLeast = {0, 0, 0x80, 0x800, 0x10000};
  const auto first = static_cast<unsigned char>(text[0]);
  const std::size_t length = LengthByFirstByte(first);
  if (length == 0 || length > text.size()) return kNone;
  std::int32_t codePoint = first & kFirstBits[length];
  for (std::size_t at = 1; at < length; ++at) {
    const auto next = static_cast<unsigned char>(text[at]);
    if ((next & 0xC0) != 0x80) return kNone;
    codePoint = codePoint * 64 + (next & 0x3F);
  }
  return codePoint < kLeast[length] ? kNone : Character{codePoint, length};
}

}  // namespace

bool IsXmlCharacter(std::int32_t codePoint) {
  if (codePoint < 0x20) return codePoint == '\t' || codePoint == '\n' || codePoint == '\r';
  if (codePoint >= 0xD800 && codePoint < 0xE000) return false;
  return codePoint != 0xFFFE && codePoint != 0xFFFF && codePoint <= 0x10FFFF;
}

bool IsXmlText(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    if (IsPlain(text[at])) {
      ++at;
      continue;
    }
    const Character front = FrontOf(text.substr(at));
    if (!IsXmlCharacter(front.codePoint)) return false;
    at += front.length;
  }
  return true;
}

std::string ToXmlText(std::string_view text) {
  if (IsXmlText(text)) return std::string(text);
  std::string result;
  while (!text.empty()) {
    const Character front = FrontOf(text);
    result += IsXmlCharacter(front.codePoint) ? text.substr(0, front.length) : std::string_view("\xEF\xBF\xBD");
    text.remove_prefix(front.length);
  }
  return result;
}

}  // namespace vantorium::core
