#include "core/generation/ThumbnailSpool.h"

#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

namespace vantorium::generation {
namespace {

/// Opens a file without a name. If the file system does not support that, opens a named file and unlinks it at once.
int OpenNameless(const std::filesystem::path& folder) {
  const int nameless = ::open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
  if (nameless >= 0) return nameless;
  std::string name = (folder / ".vantorium-XXXXXX").string();
  const int file = ::mkostemp(name.data(), O_CLOEXEC);
  if (file >= 0) ::unlink(name.c_str());
  return file;
}

}  // namespace

ThumbnailSpool::ThumbnailSpool(const std::filesystem::path& folder) : file_(OpenNameless(folder)) {}

std::optional<ThumbnailSpool::Place> ThumbnailSpool::Put(std::string_view bytes) {
  if (!file_.IsOpen()) return std::nullopt;
  const auto written = ::pwrite(file_.Get(), bytes.data(), bytes.size(), end_);
  if (written < 0 || static_cast<std::size_t>(written) != bytes.size()) return std::nullopt;
  const Place place{end_, bytes.size()};
  end_ += written;
  return place;
}

std::optional<std::string> ThumbnailSpool::Get(Place place) const {
  std::string bytes(place.size, '\0');
  const auto read = ::pread(file_.Get(), bytes.data(), place.size, place.offset);
  if (read < 0 || static_cast<std::size_t>(read) != place.size) return std::nullopt;
  return bytes;
}

}  // namespace vantorium::generation
