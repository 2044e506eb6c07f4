#pragma once

#include <string_view>

namespace vantorium::env {

/// Whether the whole of `name` matches: "*" matches any run of characters, also an empty one; "?" matches one UTF-8
/// character, and a byte that is not part of one counts as one. Every other character matches only itself, in the same
/// case.
[[nodiscard]] bool MatchesWildcards(std::string_view name, std::string_view pattern);

}  // namespace vantorium::env
