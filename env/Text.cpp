#include "env/Text.h"

#include <algorithm>

namespace vantorium::env {
namespace {

char Upper(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}
char Lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

template <typename Find>
std::string Replaced(std::string_view text, std::string_view what, std::string_view with, Find find) {
  std::string result;
  std::size_t from = 0;
  for (std::size_t at = find(from); !what.empty() && at != std::string_view::npos; at = find(from)) {
    result.append(text, from, at - from).append(with);
    from = at + what.size();
  }
  return result.append(text, from);
}

}  // namespace

std::string AsciiUpper(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), Upper);
  return result;
}

std::string AsciiLower(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), Lower);
  return result;
}

bool EqualsIgnoringCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return Upper(a) == Upper(b); });
}

bool StartsWithIgnoringCase(std::string_view text, std::string_view start) {
  return EqualsIgnoringCase(text.substr(0, start.size()), start);
}

std::size_t FindIgnoringCase(std::string_view text, std::string_view part, std::size_t start) {
  if (part.empty() || part.size() > text.size()) return std::string_view::npos;
  // Nearly all texts searched lack the first character ("<" of a tag): let the standard library's fast search find it.
  const char first[] = {Lower(part[0]), Upper(part[0])};
  const std::string_view either(first, first[0] == first[1] ? 1 : 2);
  for (std::size_t at = start; at + part.size() <= text.size(); ++at) {
    at = either.size() == 1 ? text.find(either[0], at) : text.find_first_of(either, at);
    if (at == std::string_view::npos || at + part.size() > text.size()) break;
    if (EqualsIgnoringCase(text.substr(at, part.size()), part)) return at;
  }
  return std::string_view::npos;
}

std::string_view Trimmed(std::string_view text, std::string_view blanks) {
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view TrimNull(std::string_view fixed) {
  return Trimmed(fixed.substr(0, fixed.find('\0')));
}

std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with) {
  return Replaced(text, what, with, [&](std::size_t from) { return text.find(what, from); });
}

std::string ReplaceAllIgnoringCase(std::string_view text, std::string_view what, std::string_view with) {
  return Replaced(text, what, with, [&](std::size_t from) { return FindIgnoringCase(text, what, from); });
}

std::string WithCrLf(std::string_view text) {
  return ReplaceAll(ReplaceAll(text, kCrLf, "\n"), "\n", kCrLf);
}

std::string_view WithoutFilePrefix(std::string_view text) {
  constexpr std::string_view kPrefix = "FILE://";
  if (StartsWithIgnoringCase(text, kPrefix)) text.remove_prefix(kPrefix.size());
  return text;
}

}  // namespace vantorium::env
