#pragma once

#include <string_view>

namespace vantorium {

/// Whether the whole of `name` matches: "*" stands for any run of characters, also none, "?" for one character (UTF-8,
/// a byte that is none counts as one). Every other character stands for itself, in its case.
[[nodiscard]] bool MatchesWildcards(std::string_view name, std::string_view pattern);

}  // namespace vantorium
