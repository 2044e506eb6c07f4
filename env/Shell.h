#pragma once

#include <string>

namespace vantorium {

enum class BeepKind { Information, Warning };

/// What the program asks of the desktop around it.
class Shell {
 public:
  virtual ~Shell() = default;
  virtual void Beep(BeepKind kind) = 0;
  /// Opens a file (path text) with the desktop's default program for it. Throws RuntimeFailure when nothing could be
  /// started.
  virtual void OpenFile(const std::string& path) = 0;
  /// Starts `executable` (path text) with one argument, the file. Throws RuntimeFailure when it could not be started.
  virtual void StartProgram(const std::string& executable, const std::string& file) = 0;
};

}  // namespace vantorium
