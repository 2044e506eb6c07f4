#include "env/FileInput.h"

#include "env/FileDescriptor.h"
#include "env/NeighbourFile.h"
#include "env/RuntimeFailure.h"

#include <array>
#include <cerrno>
#include <cstdint>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantorium::env {
namespace {

/// Opens with O_NONBLOCK, so that a pipe of that name does not block the program.
int OpenToRead(const std::filesystem::path& file) {
  const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor >= 0) return descriptor;
  if (errno == ENOENT) throw RuntimeFailure(FailureKind::FileNotFound);
  ThrowFileAccess(file);
}

}  // namespace

std::string ReadFileWhole(const std::filesystem::path& file, std::size_t most) {
  const FileDescriptor source(OpenToRead(file));
  struct stat status = {};
  if (::fstat(source.Get(), &status) != 0) ThrowFileAccess(file);
  if (!S_ISREG(status.st_mode)) ThrowFileAccess(file, EINVAL);
  if (static_cast<std::uintmax_t>(status.st_size) > most) ThrowFileAccess(file, EFBIG);

  std::string bytes;
  std::array<char, 16384> block = {};
  for (;;) {
    const auto count = ::read(source.Get(), block.data(), block.size());
    if (count == 0) return bytes;
    if (count < 0 && errno != EINTR) ThrowFileAccess(file);
    if (count > 0) bytes.append(block.data(), static_cast<std::size_t>(count));
    if (bytes.size() > most) ThrowFileAccess(file, EFBIG);
  }
}

}  // namespace vantorium::env
