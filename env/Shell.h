#pragma once

#include "env/RuntimeFailure.h"

#include <chrono>
#include <functional>
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

/// Hears why a program could not be started.
using StartFailed = std::function<void(const RuntimeFailure&)>;

/// What the program asks of the desktop around it.
class Shell {
 public:
  virtual ~Shell() = default;
  virtual void Beep(BeepKind kind) = 0;
  /// Opens a file (path text) with the desktop's default program for it. Throws RuntimeFailure when nothing could be
  /// started.
  virtual void OpenFile(const std::string& path) = 0;
  /// Starts a program, which then runs by itself. `failed` is called when it could not be started: from within this
  /// call, or later while the program is watched. A desktop with windows does not wait for that.
  virtual void Start(const ShellCommand& command, const StartFailed& failed) = 0;
};

}  // namespace vantorium
