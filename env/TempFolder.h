#pragma once

#include "env/EventLoop.h"
#include "env/mFileFunctions.h"

#include <string>
#include <string_view>

namespace vantorium {

/// The name of the folder that the program calls its own, below a location that the user chooses.
inline constexpr std::string_view kTempFolderName = "VANTORIUM_TEMP";

/// The path of that folder: the location as it stands, a backslash and the name.
[[nodiscard]] std::string TempFolderIn(std::string_view location);

/// Deletes `folder` (path text) with all it holds, read-only files too; true when everything was removed. It works only
/// on a folder named VANTORIUM_TEMP and what lies below one: a path that does not say so in backslashes and to the
/// letter, or that goes up by "..", is left alone. From that folder down a symbolic link is never followed: in the path
/// it ends the work with false, as an entry or as the folder itself the link is removed, not what it points to. `loop`
/// gets a turn before each folder within and after every 201 files of a folder.
[[nodiscard]] bool DeleteFolderTree(std::string_view folder, const PathMap& paths, EventLoop& loop);

/// Empties the folder VANTORIUM_TEMP in `tempFolderLocation` (path text): deletes it and makes it again, which is tried
/// whatever came of the deletion. True when it was deleted; false, and nothing is touched, for an empty location and
/// while another process works in the folder.
bool ClearTempFolder(std::string_view tempFolderLocation, const mFileFunctions& files, EventLoop& loop);

}  // namespace vantorium
