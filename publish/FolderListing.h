#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace vantorium::publish {

enum class EntryKind { Folder, File, LinkedFolder, BrokenLink };

struct FolderEntry {
  std::string name;
  EntryKind kind;

  bool operator==(const FolderEntry&) const = default;
};

/// The contents of a folder, sorted by the bytes of the names, so that the order is the same everywhere.
struct FolderListing {
  std::vector<FolderEntry> entries;
  bool complete = false;  ///< the folder was read to its end
};

/// Lists a folder. A link to a file is a File, a link to a folder a LinkedFolder, a link to what cannot be found or
/// reached a BrokenLink. Devices and pipes have nothing to send and are left out. So are the program's unfinished files
/// (env/NeighbourFile.h), also those of a killed run. Calls `goOn` once for a folder that can be read and after each of
/// its entries, as there may be very many; the first false ends the listing.
[[nodiscard]] FolderListing ListFolder(const std::filesystem::path& folder, const std::function<bool()>& goOn);

}  // namespace vantorium::publish
