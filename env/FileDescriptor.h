#pragma once

#include <string_view>
#include <tuple>
#include <utility>

namespace vantorium::env {

/// Owns an open file descriptor and closes it on destruction.
class FileDescriptor {
 public:
  explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
  ~FileDescriptor() { std::ignore = Close(); }
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;

  [[nodiscard]] int Get() const { return descriptor_; }
  [[nodiscard]] bool IsOpen() const { return descriptor_ >= 0; }
  /// Closes it now. Returns false if the system reports a failure; a full disk may be reported only here.
  [[nodiscard]] bool Close();

 private:
  int descriptor_;
};

/// Writes all of `bytes` to an open file. Returns false, with the reason in errno, if the system does not accept them
/// all.
[[nodiscard]] bool WriteAll(int descriptor, std::string_view bytes);
/// The same for a standard stream, which another program may have made non-blocking: waits until it accepts more.
[[nodiscard]] bool WriteAllToStream(int stream, std::string_view bytes);

}  // namespace vantorium::env
