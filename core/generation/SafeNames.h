#pragma once

#include <string_view>

namespace vantorium {

/// Whether `name` is one plain file name: no separator, no drive, not "." or "..". List texts come from project files
/// of any origin, and what a run writes has to stay in the gallery's folder.
[[nodiscard]] bool IsPlainFileName(std::string_view name);

/// Whether a relative path text, file or folder, can lead out of the folder it is appended to: by "..", by a drive.
[[nodiscard]] bool LeavesFolder(std::string_view relativePath);

}  // namespace vantorium
