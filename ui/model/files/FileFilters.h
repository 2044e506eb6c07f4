#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantorium::ui {

/// One line of a file dialog's list of file types.
struct FileFilter {
  std::string description;
  std::vector<std::string> patterns;  ///< with wildcards; a file that matches one, ignoring case, is shown
};

/// Parses pairs of description and pattern, all separated by "|", with ";" between several patterns. A description
/// without a pattern shows every file, and so do "*.*" and "*.exe": no extension identifies a program here, and many
/// names have no extension at all.
[[nodiscard]] std::vector<FileFilter> ParseFileFilters(std::string_view filter);

}  // namespace vantorium::ui
