#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace vantorium {

enum class EntryKind { Folder, File, LinkedFolder };

struct FolderEntry {
  std::string name;
  EntryKind kind;

  bool operator==(const FolderEntry&) const = default;
};

/// What is in a folder, in the order of the names' bytes, so that it is the same everywhere.
struct FolderListing {
  std::vector<FolderEntry> entries;
  bool complete = false;  ///< the folder could be read to its end
};

/// Lists a folder. A link to a file is a file, a link to a folder a LinkedFolder. What is none of these has nothing to
/// send and is left out: devices, pipes, links that lead nowhere. So is a file that this program has not finished
/// (env/NeighbourFile.h), or never will as it was killed. `goOn` is asked once for a folder that can be read and behind
/// each of its entries, as there may be very many; its first no ends the listing.
[[nodiscard]] FolderListing ListFolder(const std::filesystem::path& folder, const std::function<bool()>& goOn);

}  // namespace vantorium
