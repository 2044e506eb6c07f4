#pragma once

#include <string>
#include <string_view>

namespace vantorium {

// Paths inside the program are Windows path text whatever the system: backslashes separate folders, a few operations
// take slashes too and turn them round. These functions only look at the text.

/// What follows the last separator, the whole text when there is none. Slashes are turned to backslashes and one
/// leading backslash is dropped first, so a UNC path loses its first.
[[nodiscard]] std::string GetFileName(std::string_view path);

/// Everything through the last separator, in backslashes, empty when there is none; prepared as in GetFileName.
[[nodiscard]] std::string GetFilePath(std::string_view path);

/// From the last "." to the end, with the dot; empty without one. Separators stop nothing: `C:\a.b\c` gives `.b\c`.
[[nodiscard]] std::string GetFileExtension(std::string_view path);

/// Whether the path begins with the letter of a drive and a colon.
[[nodiscard]] bool HasDrive(std::string_view path);

[[nodiscard]] std::string WithSlashes(std::string_view path);
[[nodiscard]] std::string WithBackslashes(std::string_view path);

/// `path` with `extension`, which has its dot, appended unless it ends in it, upper and lower case being the same.
[[nodiscard]] std::string WithExtension(std::string_view path, std::string_view extension);

/// `folder` with a backslash appended unless it ends in one.
[[nodiscard]] std::string WithTrailingBackslash(std::string_view folder);

}  // namespace vantorium
