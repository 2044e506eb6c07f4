#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace vantorium {

enum class BeepKind { Information, Warning };

/// A program to start.
struct ShellCommand {
  /// The program, looked for along PATH when it has no slash, and its arguments; native texts.
  std::vector<std::string> words;
  /// How long it is watched: when it ends without success in that time, it counts as a program that could not be
  /// started. That is for programs that only start another one.
  std::chrono::milliseconds watched{0};
};

/// What the program asks of the desktop around it.
class Shell {
 public:
  virtual ~Shell() = default;
  virtual void Beep(BeepKind kind) = 0;
  /// Opens a file (path text) with the desktop's default program for it. Throws RuntimeFailure when nothing could be
  /// started.
  virtual void OpenFile(const std::string& path) = 0;
  /// Starts a program, which then runs by itself. Throws RuntimeFailure when it could not be started.
  virtual void Start(const ShellCommand& command) = 0;
};

}  // namespace vantorium
