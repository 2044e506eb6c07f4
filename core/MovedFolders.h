#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::core {

/// A folder that a project names as the place of photographs, and where it is now. Both are path text; they end in a
/// separator, or in the colon of a drive.
struct MovedFolder {
  std::string from;
  std::string to;
};

/// Photographs that are named by a path below one folder.
struct SourceFolder {
  std::string folder;                ///< with its last backslash, or the colon of a drive
  std::vector<std::string> sources;  ///< as given
};

/// Groups the paths of photographs (path text with either separator): those below the same folder of a drive or share
/// are a group, and so are those in its root. The folder of a group is the deepest that has all of them. Names are
/// compared without regard to case, as the systems do that write such paths. The order is that of the first of each
/// group.
[[nodiscard]] std::vector<SourceFolder> FoldersOf(const std::vector<std::string>& sources);

/// Returns the path of a photograph below the place where its folder is now, with slashes, as a project file has it;
/// `source` unchanged if it is in none of the folders. Of several folders the deepest one counts.
[[nodiscard]] std::string Moved(const std::string& source, std::span<const MovedFolder> folders);

}  // namespace vantorium::core
