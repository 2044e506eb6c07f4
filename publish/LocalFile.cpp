#include "publish/LocalFile.h"

#include "env/NeighbourFile.h"
#include "env/RuntimeFailure.h"

#include <cerrno>
#include <limits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantorium {
namespace {

[[noreturn]] void ThrowWhyNot(const std::filesystem::path& file) {
  if (errno == ENOENT || errno == ENOTDIR) throw RuntimeFailure(FailureKind::FileNotFound);
  ThrowFileAccess(file);
}

}  // namespace

std::int32_t LengthOfFile(const std::optional<std::filesystem::path>& file) {
  struct stat status = {};
  if (!file) throw RuntimeFailure(FailureKind::FileNotFound);
  if (::stat(file->c_str(), &status) != 0) ThrowWhyNot(*file);
  if (S_ISDIR(status.st_mode)) throw RuntimeFailure(FailureKind::FileNotFound);
  if (!S_ISREG(status.st_mode)) ThrowFileAccess(*file, EINVAL);
  if (status.st_size > std::numeric_limits<std::int32_t>::max()) throw RuntimeFailure(FailureKind::Overflow);
  return static_cast<std::int32_t>(status.st_size);
}

// Opened without waiting, so that a pipe that has taken the file's place does not stop the program.
LocalFile::LocalFile(const std::filesystem::path& file)
    : file_(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
  if (!file_.IsOpen()) ThrowWhyNot(file);
}

bool LocalFile::Read(std::span<char> block) const {
  while (!block.empty()) {
    const auto count = ::read(file_.Get(), block.data(), block.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    block = block.subspan(static_cast<std::size_t>(count));
  }
  return true;
}

}  // namespace vantorium
