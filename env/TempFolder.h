#pragma once

#include "env/EventLoop.h"
#include "env/mFileFunctions.h"

#include <string>
#include <string_view>

namespace vantorium::env {

/// The name of the folder that the program calls its own, below a location that the user chooses.
inline constexpr std::string_view kTempFolderName = "VANTORIUM_TEMP";

/// The path of that folder: the location as it stands, a backslash and the name.
[[nodiscard]] std::string TempFolderIn(std::string_view location);

/// Deletes `folder` (path text) and everything in it, including read-only files. Returns true if everything was
/// removed. Works only on a folder named VANTORIUM_TEMP and folders below one: a path without exactly this name between
/// backslashes, or with ".." after it, is left alone. From that folder down, symbolic links are never followed: a link
/// within the path makes it return false; a link as an entry, or as the folder itself, is removed, not its target.
/// `loop` gets a turn before each folder within and after every 201 files of a folder.
[[nodiscard]] bool DeleteFolderTree(std::string_view folder, const PathMap& paths, EventLoop& loop);

/// Empties the folder VANTORIUM_TEMP in `tempFolderLocation` (path text): deletes it and creates it again, even if the
/// deletion failed. Returns true if it was deleted. For an empty location, and while another process works in the
/// folder, returns false and changes nothing.
bool ClearTempFolder(std::string_view tempFolderLocation, const mFileFunctions& files, EventLoop& loop);

}  // namespace vantorium::env
