#include "publish/LocalFile.h"

#include "env/NeighbourFile.h"
#include "env/RuntimeFailure.h"

#include <algorithm>
#include <cerrno>
#include <limits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantorium::publish {
namespace {

/// Blocks are small: reading them one by one would cost more in system calls than in copying.
constexpr std::size_t kReadAhead = 64 * 1024;

[[noreturn]] void ThrowWhyNot(const std::filesystem::path& file) {
  if (errno == ENOENT || errno == ENOTDIR) throw env::RuntimeFailure(env::FailureKind::FileNotFound);
  env::ThrowFileAccess(file);
}

}  // namespace

std::int32_t LengthOfFile(const std::optional<std::filesystem::path>& file) {
  struct stat status = {};
  if (!file) throw env::RuntimeFailure(env::FailureKind::FileNotFound);
  if (::stat(file->c_str(), &status) != 0) ThrowWhyNot(*file);
  if (S_ISDIR(status.st_mode)) throw env::RuntimeFailure(env::FailureKind::FileNotFound);
  if (!S_ISREG(status.st_mode)) env::ThrowFileAccess(*file, EINVAL);
  if (status.st_size > std::numeric_limits<std::int32_t>::max()) throw env::RuntimeFailure(env::FailureKind::Overflow);
  return static_cast<std::int32_t>(status.st_size);
}

// Opened with O_NONBLOCK, so that a pipe that has taken the file's place does not block the program.
LocalFile::LocalFile(const std::filesystem::path& file)
    : file_(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
  if (!file_.IsOpen()) ThrowWhyNot(file);
}

bool LocalFile::Read(std::span<char> block) {
  while (!block.empty()) {
    if (ahead_.empty() && !ReadAhead()) return false;
    const auto piece = ahead_.first(std::min(ahead_.size(), block.size()));
    std::ranges::copy(piece, block.begin());
    ahead_ = ahead_.subspan(piece.size());
    block = block.subspan(piece.size());
  }
  return true;
}

bool LocalFile::ReadAhead() {
  buffer_.resize(kReadAhead);
  ssize_t count = 0;
  do {
    count = ::read(file_.Get(), buffer_.data(), buffer_.size());
  } while (count < 0 && errno == EINTR);
  if (count <= 0) return false;
  ahead_ = std::span(buffer_).first(static_cast<std::size_t>(count));
  return true;
}

}  // namespace vantorium::publish
