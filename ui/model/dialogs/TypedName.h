#pragma once

#include <algorithm>
#include <string>

namespace vantorium::ui {

/// Converts text typed or pasted as the name of an image: replaces spaces by underscores and removes line ends and
/// other control characters.
[[nodiscard]] inline std::string TypedName(std::string text) {
  std::erase_if(text, [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; });
  std::ranges::replace(text, ' ', '_');
  return text;
}

}  // namespace vantorium::ui
