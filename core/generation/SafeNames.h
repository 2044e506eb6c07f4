#pragma once

#include <string_view>

namespace vantorium::generation {

/// Returns true if `name` is a single plain file name: no separator, no drive, not "." or "..". List texts come from
/// project files of any origin, and a run must write only inside the gallery's folder.
[[nodiscard]] bool IsPlainFileName(std::string_view name);

/// Returns true if a relative path text (file or folder) can lead out of the folder it is appended to, by ".." or a
/// drive.
[[nodiscard]] bool LeavesFolder(std::string_view relativePath);

}  // namespace vantorium::generation
