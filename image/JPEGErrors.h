#pragma once

#include <csetjmp>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>

#include <jpeglib.h>

namespace vantorium {

/// How one codec object of the JPEG library reports: its errors end the guarded call, its warnings are sorted into
/// damage of the picture and harmless oddities. Nothing is printed.
class JPEGErrors {
 public:
  JPEGErrors();
  JPEGErrors(const JPEGErrors&) = delete;
  JPEGErrors& operator=(const JPEGErrors&) = delete;

  /// What goes into the `err` field of the codec.
  [[nodiscard]] jpeg_error_mgr* Manager() { return &record_.manager; }

  /// Calls `work`, which calls the library. False when the library gave up, and ever after without a call: the codec is
  /// then good for nothing but its destruction. The library leaves `work` by a jump, so no object with a destructor may
  /// live in it, and no exception may leave it.
  template <typename Work>
  [[nodiscard]] bool Run(Work work) {
    return RunGuarded([](void* context) { (*static_cast<Work*>(context))(); }, &work);
  }

  [[nodiscard]] bool Failed() const { return failed_; }
  /// Whether the library gave up over a marker that it does not know. It may then be called again, once the marker is
  /// out of its way.
  [[nodiscard]] bool ForgiveUnknownMarker();

  /// Whether a warning said that picture data are missing or wrong.
  [[nodiscard]] bool Damaged() const { return record_.damaged; }
  /// Whether the file ended without an end mark. That alone is no damage: the library goes on as if there were one, and
  /// says of Huffman codes that it misses that they are missing.
  [[nodiscard]] bool EndedEarly() const { return record_.endedEarly; }
  /// The library's words for the error.
  [[nodiscard]] std::string Text() const { return record_.text; }

 private:
  // The manager is the first member of the record: the library hands a pointer to it to the handlers.
  struct Record {
    jpeg_error_mgr manager = {};
    std::jmp_buf jump = {};
    bool damaged = false;
    bool endedEarly = false;
    char text[JMSG_LENGTH_MAX] = {};
  };

  [[noreturn]] static void OnError(j_common_ptr codec);
  static void OnMessage(j_common_ptr codec, int level);
  [[nodiscard]] bool RunGuarded(void (*work)(void*), void* context);

  Record record_;
  bool failed_ = false;
};

}  // namespace vantorium
