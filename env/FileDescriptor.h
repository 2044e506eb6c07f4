#pragma once

#include <tuple>
#include <utility>

#include <unistd.h>

namespace vantorium {

/// An open file of the system, closed with the object.
class FileDescriptor {
 public:
  explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
  ~FileDescriptor() { std::ignore = Close(); }
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;

  [[nodiscard]] int Get() const { return descriptor_; }
  [[nodiscard]] bool IsOpen() const { return descriptor_ >= 0; }
  /// Closes it now; false when the system reports a failure, as a full disk may do only here.
  [[nodiscard]] bool Close() {
    const int descriptor = std::exchange(descriptor_, -1);
    return descriptor < 0 || ::close(descriptor) == 0;
  }

 private:
  int descriptor_;
};

}  // namespace vantorium
