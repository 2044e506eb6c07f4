#pragma once

#include <string>
#include <string_view>

namespace vantorium {

// Comparisons and replacements that ignore the case of ASCII letters only, and line ends. All texts are UTF-8.

inline constexpr std::string_view kCrLf = "\r\n";

/// `text` with the letters a to z raised; every other byte stays.
[[nodiscard]] std::string AsciiUpper(std::string_view text);
[[nodiscard]] std::string AsciiLower(std::string_view text);

[[nodiscard]] bool EqualsIgnoringCase(std::string_view left, std::string_view right);

/// Position of `part` in `text` from `start` on, or npos.
[[nodiscard]] std::size_t FindIgnoringCase(std::string_view text, std::string_view part, std::size_t start = 0);

/// `text` without the characters of `blanks` at both ends.
[[nodiscard]] std::string_view Trimmed(std::string_view text, std::string_view blanks = " ");

/// A text out of a block of fixed size: what stands before the first NUL, without the blanks around it.
[[nodiscard]] std::string_view TrimNull(std::string_view fixed);

/// All occurrences of `what` replaced, from left to right; what is put in is not searched again.
[[nodiscard]] std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with);
[[nodiscard]] std::string ReplaceAllIgnoringCase(std::string_view text, std::string_view what, std::string_view with);

/// `text` with each LF, and each CR LF, as CR LF.
[[nodiscard]] std::string WithCrLf(std::string_view text);

/// `text` without "file://" in any case in front.
[[nodiscard]] std::string_view WithoutFilePrefix(std::string_view text);

}  // namespace vantorium
