#include "publish/FolderListing.h"

#include "env/NeighbourFile.h"

#include <algorithm>
#include <optional>

namespace fs = std::filesystem;

namespace vantorium::publish {
namespace {

std::optional<EntryKind> KindOf(const fs::directory_entry& entry) {
  std::error_code error;
  if (entry.is_regular_file(error)) return EntryKind::File;
  const bool isLink = entry.is_symlink(error);
  if (entry.is_directory(error)) return isLink ? EntryKind::LinkedFolder : EntryKind::Folder;
  if (isLink && !entry.exists(error)) return EntryKind::BrokenLink;
  return std::nullopt;
}

}  // namespace

FolderListing ListFolder(const fs::path& folder, const std::function<bool()>& goOn) {
  FolderListing listing;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  bool goesOn = !error && goOn();
  for (; goesOn && entry != fs::directory_iterator(); goesOn = !error && goOn()) {
    const std::string name = entry->path().filename().string();
    const auto kind = KindOf(*entry);
    const bool unfinished = kind == EntryKind::File && env::IsNeighbourName(name);
    if (kind && !unfinished) listing.entries.push_back({name, *kind});
    entry.increment(error);
  }
  listing.complete = goesOn;
  std::ranges::sort(listing.entries, {}, &FolderEntry::name);
  return listing;
}

}  // namespace vantorium::publish
