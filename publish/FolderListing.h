#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vantorium {

enum class EntryKind { Folder, File };

struct FolderEntry {
  std::string name;
  EntryKind kind;

  bool operator==(const FolderEntry&) const = default;
};

/// What is in a folder, in the order of the names' bytes, so that it is the same everywhere.
struct FolderListing {
  std::vector<FolderEntry> entries;
  bool started = false;   ///< the folder could be read at all
  bool complete = false;  ///< it could be read to its end
};

/// Lists a folder. A link to a file is a file. A link to a folder is left out, since it may lead back to a folder above
/// it, and so is what is neither of the two and has nothing to send: devices, pipes, links that lead nowhere. A file
/// that this program has not finished (env/NeighbourFile.h), or never will as it was killed, is left out too.
[[nodiscard]] FolderListing ListFolder(const std::filesystem::path& folder);

}  // namespace vantorium
