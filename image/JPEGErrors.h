#pragma once

#include <csetjmp>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>

#include <jpeglib.h>

namespace vantorium::image {

/// Handles the errors of one libjpeg-turbo codec object. Errors end the guarded call; warnings are classified as damage
/// to the picture or as harmless. Prints nothing.
class JPEGErrors {
 public:
  JPEGErrors();
  JPEGErrors(const JPEGErrors&) = delete;
  JPEGErrors& operator=(const JPEGErrors&) = delete;

  /// The value for the codec's `err` field.
  [[nodiscard]] jpeg_error_mgr* Manager() { return &record_.manager; }

  /// Calls `work`, which calls libjpeg-turbo. Returns false if libjpeg-turbo reports an error; later calls then return
  /// false without calling `work`, and the codec can only be destroyed. libjpeg-turbo leaves `work` with longjmp, so
  /// `work` must not hold objects with destructors and must not throw.
  template <typename Work>
  [[nodiscard]] bool Run(Work work) {
    return RunGuarded([](void* context) { (*static_cast<Work*>(context))(); }, &work);
  }

  [[nodiscard]] bool Failed() const { return failed_; }
  /// Returns whether the error was an unknown marker, and clears it then: the call may be repeated once the marker has
  /// been skipped.
  [[nodiscard]] bool ForgiveUnknownMarker();

  /// Whether a warning reported missing or wrong picture data.
  [[nodiscard]] bool Damaged() const { return record_.damaged; }
  /// Whether the file ended without an end marker. This alone is not damage: libjpeg-turbo continues as if there were
  /// one, and reports missing Huffman codes separately.
  [[nodiscard]] bool EndedEarly() const { return record_.endedEarly; }
  /// libjpeg-turbo's message for the error.
  [[nodiscard]] std::string Text() const { return record_.text; }

 private:
  // The manager must be the first member: libjpeg-turbo passes the handlers a pointer to it, which they cast to Record.
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

}  // namespace vantorium::image
