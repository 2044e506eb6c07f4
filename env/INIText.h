#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantorium {

// The text of a preference-like file:
//
//   file    = *(line end)          end = CR LF, LF or CR; the last line needs none
//   section = "[" name "]"         blanks around it do not count
//   value   = key "=" text         at the beginning of the line; a text in double quotation marks loses them
//
// Names and keys are compared without regard to the case of ASCII letters. Nothing is escaped. All other lines are
// somebody's own and stay as they are.

/// One line and how it ends, views into the text.
struct INILine {
  std::string_view content;
  std::string_view end;
};

/// Takes the first line off `rest`, which may not be empty.
INILine TakeINILine(std::string_view& rest);

/// Whether `line` is the section line of `section`, and whether it is that of any section.
[[nodiscard]] bool IsSectionLine(std::string_view line, std::string_view section);
[[nodiscard]] bool IsSectionLine(std::string_view line);

/// What follows the key's "=": without its first and its last character when the first is a double quotation mark,
/// whatever the last one is.
[[nodiscard]] std::string_view WithoutMarks(std::string_view value);

/// The value of `key` as the program reads it: that of the first such line behind the section's line. Later sections
/// are not kept apart, so a key that its section does not have can be found in one of them; and where there is no such
/// section, the last line of the text still counts.
[[nodiscard]] std::optional<std::string> FindINIString(std::string_view text, std::string_view section,
                                                       std::string_view key);

/// `text` with `key` of `section` set to `value` in double quotation marks: the line is changed in place, else added to
/// the end of its section, else a new section is added to the end of the text. Added lines end as the first line of the
/// text does, in CR LF when there is none. Neither argument may hold a line break.
[[nodiscard]] std::string WithINIString(std::string_view text, std::string_view section, std::string_view key,
                                        std::string_view value);

}  // namespace vantorium
