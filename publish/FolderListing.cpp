#include "publish/FolderListing.h"

#include "env/NeighbourFile.h"

#include <algorithm>
#include <optional>

namespace fs = std::filesystem;

namespace vantorium {
namespace {

std::optional<EntryKind> KindOf(const fs::directory_entry& entry) {
  std::error_code error;
  if (entry.is_regular_file(error)) return EntryKind::File;
  if (entry.is_directory(error) && !entry.is_symlink(error)) return EntryKind::Folder;
  return std::nullopt;
}

}  // namespace

FolderListing ListFolder(const fs::path& folder) {
  FolderListing listing;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  listing.started = !error;
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    const auto kind = KindOf(*entry);
    const bool unfinished = kind == EntryKind::File && IsNeighbourName(name);
    if (kind && !unfinished) listing.entries.push_back({name, *kind});
  }
  listing.complete = !error;
  std::ranges::sort(listing.entries, {}, &FolderEntry::name);
  return listing;
}

}  // namespace vantorium
