#include "env/FileDescriptor.h"

#include <cerrno>

#include <poll.h>
#include <unistd.h>

namespace vantorium::env {

bool FileDescriptor::Close() {
  const int descriptor = std::exchange(descriptor_, -1);
  // EINTR interrupts only the wait: the file is closed, and its number may already belong to another file.
  return descriptor < 0 || ::close(descriptor) == 0 || errno == EINTR;
}

namespace {

/// Returns false, with the reason in errno, if the stream cannot be waited for.
bool WaitUntilReady(int stream) {
  pollfd entry = {.fd = stream, .events = POLLOUT, .revents = 0};
  return ::poll(&entry, 1, -1) >= 0 || errno == EINTR;
}

bool Write(int descriptor, std::string_view bytes, bool waits) {
  while (!bytes.empty()) {
    const auto written = ::write(descriptor, bytes.data(), bytes.size());
    if (written > 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (written == 0) {
      errno = EIO;  // a device that accepts nothing would be retried forever
      return false;
    } else if (errno == EAGAIN && waits) {
      if (!WaitUntilReady(descriptor)) return false;
    } else if (errno != EINTR) {
      return false;
    }
  }
  return true;
}

}  // namespace

bool WriteAll(int descriptor, std::string_view bytes) {
  return Write(descriptor, bytes, /*waits=*/false);
}

bool WriteAllToStream(int stream, std::string_view bytes) {
  return Write(stream, bytes, /*waits=*/true);
}

}  // namespace vantorium::env
