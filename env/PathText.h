#pragma once

#include <string>
#include <string_view>

namespace vantorium::env {

// Paths inside the program are Windows path text on every system: backslashes separate folders; a few operations also
// accept slashes and convert them. These functions only look at the text.

/// Returns the text after the last separator, or the whole text if there is none. First converts slashes to backslashes
/// and drops one leading backslash, so a UNC path loses its first.
[[nodiscard]] std::string GetFileName(std::string_view path);

/// Returns everything through the last separator, with backslashes; empty if there is none. Prepares the text as
/// GetFileName does.
[[nodiscard]] std::string GetFilePath(std::string_view path);

/// Returns the text from the last "." to the end, with the dot; empty without one. Separators do not matter: `C:\a.b\c`
/// gives `.b\c`.
[[nodiscard]] std::string GetFileExtension(std::string_view path);

/// Whether the path begins with the letter of a drive and a colon.
[[nodiscard]] bool HasDrive(std::string_view path);

[[nodiscard]] std::string WithSlashes(std::string_view path);
[[nodiscard]] std::string WithBackslashes(std::string_view path);

/// Returns `path` with `extension` (with its dot) appended unless it already ends in it, ignoring case.
[[nodiscard]] std::string WithExtension(std::string_view path, std::string_view extension);

/// `folder` with a backslash appended unless it ends in one.
[[nodiscard]] std::string WithTrailingBackslash(std::string_view folder);

}  // namespace vantorium::env
