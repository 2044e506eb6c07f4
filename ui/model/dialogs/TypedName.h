#pragma once

#include <algorithm>
#include <string>

namespace vantorium {

/// What a text that is typed or pasted as the name of an image becomes: its blanks are underscores, and it has no line
/// ends or other control characters.
[[nodiscard]] inline std::string TypedName(std::string text) {
  std::erase_if(text, [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; });
  std::ranges::replace(text, ' ', '_');
  return text;
}

}  // namespace vantorium
