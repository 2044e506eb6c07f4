#pragma once

#include <string_view>
#include <tuple>
#include <utility>

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
  [[nodiscard]] bool Close();

 private:
  int descriptor_;
};

/// Writes all of `bytes` to an open file. False, with the reason in errno, when the system does not take them all.
[[nodiscard]] bool WriteAll(int descriptor, std::string_view bytes);

}  // namespace vantorium
