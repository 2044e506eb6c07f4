#pragma once

#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <sys/resource.h>
#include <unistd.h>

namespace vantorium::fakes {

/// While it exists, no file can grow beyond `bytes`, as on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : oldAction_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &old_);
    const rlimit limit = {bytes, old_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &old_);
    std::signal(SIGXFSZ, oldAction_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit old_ = {};
  void (*oldAction_)(int);
};

/// While it exists, the process can allocate at most `bytes` more address space.
class MemoryLimit {
 public:
  explicit MemoryLimit(std::uint64_t bytes) {
    ::getrlimit(RLIMIT_AS, &old_);
    std::uint64_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlimit limit = {pages * static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE)) + bytes, old_.rlim_max};
    ::setrlimit(RLIMIT_AS, &limit);
  }
  ~MemoryLimit() { ::setrlimit(RLIMIT_AS, &old_); }
  MemoryLimit(const MemoryLimit&) = delete;
  MemoryLimit& operator=(const MemoryLimit&) = delete;

 private:
  rlimit old_ = {};
};

/// While it exists, nothing can be created or removed in `folder`. Tests that run as root give up root's rights
/// meanwhile.
class LockedFolder {
 public:
  explicit LockedFolder(const std::filesystem::path& folder) : folder_(folder) {
    std::filesystem::permissions(folder, std::filesystem::perms(0555));
    if (::geteuid() != 0) return;
    // The unprivileged user must still be able to reach the folder.
    const auto end = std::filesystem::temp_directory_path();
    for (auto above = folder.parent_path(); above != end && above.has_relative_path(); above = above.parent_path()) {
      std::filesystem::permissions(above, std::filesystem::perms(0755));
    }
    isRoot_ = ::seteuid(kNobody) == 0;
  }
  ~LockedFolder() {
    if (isRoot_ && ::seteuid(0) != 0) std::abort();
    std::error_code ignored;
    std::filesystem::permissions(folder_, std::filesystem::perms(0755), ignored);
  }
  LockedFolder(const LockedFolder&) = delete;
  LockedFolder& operator=(const LockedFolder&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;

  std::filesystem::path folder_;
  bool isRoot_ = false;
};

/// While it exists, sets an environment variable, or removes it if `value` is null.
class EnvironmentVariable {
 public:
  EnvironmentVariable(const char* name, const char* value) : name_(name) {
    if (const char* old = std::getenv(name)) {
      old_ = old;
      wasSet_ = true;
    }
    value == nullptr ? ::unsetenv(name) : ::setenv(name, value, 1);
  }
  ~EnvironmentVariable() { wasSet_ ? ::setenv(name_, old_.c_str(), 1) : ::unsetenv(name_); }
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

 private:
  const char* name_;
  std::string old_;
  bool wasSet_ = false;
};

}  // namespace vantorium::fakes
