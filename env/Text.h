#pragma once

#include <string>
#include <string_view>

namespace vantorium::env {

// Comparisons and replacements that ignore the case of ASCII letters only, and conversion of line ends. All texts are
// UTF-8.

inline constexpr std::string_view kCrLf = "\r\n";

[[nodiscard]] constexpr bool IsAsciiLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
[[nodiscard]] constexpr bool IsAsciiDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Returns `text` with the letters a to z in upper case; every other byte is unchanged.
[[nodiscard]] std::string AsciiUpper(std::string_view text);
[[nodiscard]] std::string AsciiLower(std::string_view text);

[[nodiscard]] bool EqualsIgnoringCase(std::string_view left, std::string_view right);
[[nodiscard]] bool StartsWithIgnoringCase(std::string_view text, std::string_view start);

/// Returns the position of `part` in `text` from `start` on, or npos.
[[nodiscard]] std::size_t FindIgnoringCase(std::string_view text, std::string_view part, std::size_t start = 0);

/// Returns `text` without the characters of `blanks` at both ends.
[[nodiscard]] std::string_view Trimmed(std::string_view text, std::string_view blanks = " ");

/// Returns the text in a block of fixed size: what precedes the first NUL, without the blanks around it.
[[nodiscard]] std::string_view TrimNull(std::string_view fixed);

/// Replaces all occurrences of `what`, from left to right; the inserted text is not searched again.
[[nodiscard]] std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with);
[[nodiscard]] std::string ReplaceAllIgnoringCase(std::string_view text, std::string_view what, std::string_view with);

/// Returns `text` with each LF, and each CR LF, as CR LF.
[[nodiscard]] std::string WithCrLf(std::string_view text);

/// Returns `text` without a leading "file://" in any case.
[[nodiscard]] std::string_view WithoutFilePrefix(std::string_view text);

}  // namespace vantorium::env
