#include "env/FileDescriptor.h"

#include <cerrno>

#include <unistd.h>

namespace vantorium::env {

bool FileDescriptor::Close() {
  const int descriptor = std::exchange(descriptor_, -1);
  // EINTR interrupts only the wait: the file is closed, and its number may already belong to another file.
  return descriptor < 0 || ::close(descriptor) == 0 || errno == EINTR;
}

bool WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto written = ::write(descriptor, bytes.data(), bytes.size());
    if (written > 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (written == 0) {
      errno = EIO;  // a device that accepts nothing would be retried forever
      return false;
    } else if (errno != EINTR) {
      return false;
    }
  }
  return true;
}

}  // namespace vantorium::env
