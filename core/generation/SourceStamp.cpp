#include "core/generation/SourceStamp.h"

#include <fmt/format.h>
#include <sys/stat.h>

namespace vantorium::generation {
namespace {

std::int64_t Nanoseconds(const timespec& time) {
  return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

}  // namespace

std::optional<SourceStamp> StampOf(const std::filesystem::path& file) {
  struct stat status = {};
  if (::stat(file.c_str(), &status) != 0) return std::nullopt;
  return SourceStamp{status.st_dev, status.st_ino, status.st_size, Nanoseconds(status.st_mtim),
                     Nanoseconds(status.st_ctim)};
}

std::string StampText(const SourceStamp& stamp) {
  return fmt::format("{}:{}:{}:{}:{}", stamp.device, stamp.inode, stamp.size, stamp.writeTime, stamp.changeTime);
}

}  // namespace vantorium::generation
