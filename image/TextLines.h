#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantorium::image {

/// Splits a text into the lines to draw, without their breaks: valid UTF-8, with spaces for control characters. An
/// empty text has no lines; a break at the very end starts no line.
[[nodiscard]] std::vector<std::string> LinesOfText(std::string_view text);

}  // namespace vantorium::image
