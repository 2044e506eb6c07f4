#pragma once

#include "env/FileDescriptor.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

namespace vantorium {

enum class StandardError { Pipe, Terminal };

struct StartOptions {
  std::vector<std::string> command;  ///< the program's path and its arguments
  std::filesystem::path folder;      ///< to work in
  std::map<std::string, std::string> environment;
  std::filesystem::path standardInput = "/dev/null";  ///< unless there is a terminal
  StandardError standardError = StandardError::Pipe;
  std::filesystem::path standardOutput = {};  ///< a file in place of the pipe
  std::vector<int> closedStreams = {};
  bool outlivesTerminal = false;  ///< as with nohup
  unsigned short columns = 80;    ///< of the terminal
};

/// What a process left behind. `exitCode` is -1 when a signal ended it.
struct ProcessResult {
  int exitCode = -1;
  std::string out;
  std::string err;
};

/// A program that runs, with standard output in a pipe and standard error in a pipe or on a terminal of its own, which
/// then is its controlling terminal. Whatever the system refuses, and whatever takes longer than two minutes, throws
/// std::runtime_error. The process is gone with the object.
class ChildProcess {
 public:
  explicit ChildProcess(const StartOptions& options);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// Reads until standard error holds a match of the regular expression; throws when it ends without.
  void WaitForError(const std::string& expression);
  /// Waits, without reading, until the process writes no more to standard error since the pipe is full.
  void WaitUntilErrorPipeIsFull() const;
  void Send(int signal) const;
  /// The number that the process has, or had.
  [[nodiscard]] pid_t Number() const { return process_; }
  /// Takes the terminal away; what it showed after the last reading is lost.
  void HangUp();
  /// Types on the keyboard of the terminal.
  void Type(std::string_view keys) const;
  /// Whether the process has ended by itself; never waits.
  [[nodiscard]] bool HasEnded();
  /// Reads both streams to their ends and waits for the process.
  [[nodiscard]] ProcessResult Finish();

 private:
  void ReadSome();
  void Reap(int status);
  [[noreturn]] void GiveUp(const std::string& why) const;

  /// Both ends of a pipe or a terminal. The child's end is closed here once the child runs.
  struct Stream {
    FileDescriptor ours;
    FileDescriptor childs;
  };

  [[nodiscard]] static Stream MakePipe();
  [[nodiscard]] static Stream MakeTerminal(unsigned short columns);

  Stream out_;
  Stream err_;
  pid_t process_ = -1;
  bool ended_ = false;
  ProcessResult result_;
};

}  // namespace vantorium
