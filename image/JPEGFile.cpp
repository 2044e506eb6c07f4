#include "image/JPEGFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantorium::image {

FileHandle OpenRegularFile(const std::filesystem::path& path, std::uint64_t& size) {
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (descriptor < 0) return nullptr;
  struct stat status = {};
  const bool regular = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
  FileHandle file(regular ? ::fdopen(descriptor, "rb") : nullptr);
  if (file == nullptr) {
    ::close(descriptor);
    return nullptr;
  }
  size = static_cast<std::uint64_t>(status.st_size);
  return file;
}

}  // namespace vantorium::image
