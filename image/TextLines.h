#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantorium {

/// The lines that a text is drawn as, without their breaks: valid UTF-8, with blanks for control characters. An empty
/// text has none; a break at the very end begins none.
[[nodiscard]] std::vector<std::string> LinesOfText(std::string_view text);

}  // namespace vantorium
