#pragma once

#include <algorithm>
#include <string>

namespace vantorium {

/// What a text that is typed as the name of an image becomes: its blanks are underscores.
[[nodiscard]] inline std::string TypedName(std::string text) {
  std::ranges::replace(text, ' ', '_');
  return text;
}

}  // namespace vantorium
