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

void ReadFileInPieces(const std::filesystem::path& file, std::size_t most,
                      const std::function<void(std::string_view)>& take) {
  const FileDescriptor source(OpenToRead(file));
  struct stat status = {};
  if (::fstat(source.Get(), &status) != 0) ThrowFileAccess(file);
  if (!S_ISREG(status.st_mode)) ThrowFileAccess(file, EINVAL);
  if (static_cast<std::uintmax_t>(status.st_size) > most) ThrowFileAccess(file, EFBIG);

  std::array<char, 16384> block = {};
  for (std::size_t left = most;;) {
    const auto count = ::read(source.Get(), block.data(), block.size());
    if (count == 0) return;
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) ThrowFileAccess(file);
    const std::string_view piece(block.data(), static_cast<std::size_t>(count));
    if (piece.size() > left) ThrowFileAccess(file, EFBIG);
    left -= piece.size();
    take(piece);
  }
}

std::string ReadFileWhole(const std::filesystem::path& file, std::size_t most) {
  std::string bytes;
  ReadFileInPieces(file, most, [&bytes](std::string_view piece) { bytes += piece; });
  return bytes;
}

}  // namespace vantorium::env
