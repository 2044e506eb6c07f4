#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantorium {

/// One line of a file dialog's list of file types.
struct FileFilter {
  std::string description;
  std::vector<std::string> patterns;  ///< with wildcards; a file that matches one, in any case, is shown
};

/// Takes the filters out of a text of descriptions and patterns in pairs, all between "|", with ";" between several
/// patterns. A description without a pattern shows every file, and so do "*.*" and "*.exe": names have no ending that
/// would tell a program, and many have none at all.
[[nodiscard]] std::vector<FileFilter> ParseFileFilters(std::string_view filter);

}  // namespace vantorium
