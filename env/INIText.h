#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantorium::env {

// The text of a preference-like file:
//
//   file    = *(line end)          end = CR LF, LF or CR; the last line needs none
//   section = "[" name "]"         blanks around it are ignored
//   value   = key "=" text         at the beginning of the line; double quotation marks around the text are removed
//
// Names and keys match regardless of the case of ASCII letters. Nothing is escaped. All other lines are left unchanged.

/// One line and its line end, as views into the text.
struct INILine {
  std::string_view content;
  std::string_view end;
};

/// Removes and returns the first line of `rest`, which must not be empty.
INILine TakeINILine(std::string_view& rest);

/// Whether `line` is the section line of `section`; the second form accepts any section.
[[nodiscard]] bool IsSectionLine(std::string_view line, std::string_view section);
[[nodiscard]] bool IsSectionLine(std::string_view line);

/// Returns `value`, the text after the key's "=", without its first and last character if the first is a double
/// quotation mark, whatever the last one is.
[[nodiscard]] std::string_view WithoutMarks(std::string_view value);

/// Returns the value of `key` from the first line with that key after the section's line, or nullopt if there is none.
/// The search continues into later sections, so it can find a key there that the section lacks. If there is no such
/// section, the last line of the text is still checked.
[[nodiscard]] std::optional<std::string> FindINIString(std::string_view text, std::string_view section,
                                                       std::string_view key);

/// Returns `text` with `key` of `section` set to `value` in double quotation marks. Changes the key's line in place, or
/// adds it at the end of its section, or adds a new section at the end of the text. Added lines have the line end of
/// the first line of the text, or CR LF if it has none. `section`, `key` and `value` must not contain a line break.
[[nodiscard]] std::string WithINIString(std::string_view text, std::string_view section, std::string_view key,
                                        std::string_view value);

}  // namespace vantorium::env
