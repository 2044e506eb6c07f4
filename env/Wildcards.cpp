#include "env/Wildcards.h"

#include <cstddef>

namespace vantorium::env {
namespace {

bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Returns the number of bytes of the first character of `text`.
std::size_t CharacterSize(std::string_view text) {
  std::size_t size = 1;
  if ((static_cast<unsigned char>(text[0]) & 0xC0U) != 0xC0U) return size;
  while (size < text.size() && size < 4 && IsContinuation(text[size])) ++size;
  return size;
}

}  // namespace

bool MatchesWildcards(std::string_view name, std::string_view pattern) {
  // Only the last "*" needs backtracking: what earlier ones matched can stay.
  std::string_view retryName;
  std::string_view retryPattern;
  bool canRetry = false;
  while (!name.empty()) {
    if (pattern.starts_with('*')) {
      pattern.remove_prefix(1);
      retryName = name;
      retryPattern = pattern;
      canRetry = true;
    } else if (pattern.starts_with('?')) {
      pattern.remove_prefix(1);
      name.remove_prefix(CharacterSize(name));
    } else if (!pattern.empty() && pattern[0] == name[0]) {
      pattern.remove_prefix(1);
      name.remove_prefix(1);
    } else if (canRetry) {
      retryName.remove_prefix(CharacterSize(retryName));
      name = retryName;
      pattern = retryPattern;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*') == std::string_view::npos;
}

}  // namespace vantorium::env
