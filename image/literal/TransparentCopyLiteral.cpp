#include "image/literal/TransparentCopyLiteral.h"

#include "env/Numbers.h"

namespace vantorium::image::literal {
namespace {

std::uint8_t Mixed(std::uint8_t source, std::uint8_t target, std::int32_t alpha) {
  return static_cast<std::uint8_t>(env::RoundHalfEven((target * (100 - alpha) + source * alpha) / 100.0));
}

}  // namespace

bool TransparentCopyLiteral(const cDIBSection& source, cDIBSection& target, std::uint32_t key, std::uint8_t alpha) {
  if (source.width() > target.width() || source.height() > target.height()) return false;
  if (source.DIBSectionBitsPtr() == nullptr || target.DIBSectionBitsPtr() == nullptr) return false;
  const auto red = static_cast<std::uint8_t>(key);
  const auto green = static_cast<std::uint8_t>(key >> 8);
  const auto blue = static_cast<std::uint8_t>(key >> 16);
  for (std::int32_t x = 0; x <= (source.width() - 1) * 3; x += 3) {
    for (std::int32_t y = 0; y <= source.height() - 1; ++y) {
      const std::uint8_t* from = source.Row(y) + x;
      std::uint8_t* to = target.Row(y) + x;
      if (alpha < 100) {
        if (from[0] == blue && from[1] == green && from[2] == red) continue;
        for (int i = 0; i < 3; ++i) to[i] = Mixed(from[i], to[i], alpha);
      } else if (from[0] == 255 - blue && from[1] == 255 - green && from[2] == 255 - red) {
        for (int i = 0; i < 3; ++i) to[i] = from[i];
      }
    }
  }
  return true;
}

}  // namespace vantorium::image::literal
