#pragma once

#include "env/FileDescriptor.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

namespace vantorium::batch {

enum class StandardError { Pipe, Terminal };

struct StartOptions {
  std::vector<std::string> command;  ///< the program's path and its arguments
  std::filesystem::path folder;      ///< working directory
  std::map<std::string, std::string> environment;
  std::filesystem::path standardInput = "/dev/null";  ///< not used with a terminal
  StandardError standardError = StandardError::Pipe;
  std::filesystem::path standardOutput = {};  ///< a file instead of the pipe, if not empty
  std::vector<int> closedStreams = {};
  bool outlivesTerminal = false;  ///< ignores SIGHUP, as under nohup
  unsigned short columns = 80;    ///< of the terminal
};

/// The result of a process that has ended. `exitCode` is -1 if a signal ended it.
struct ProcessResult {
  int exitCode = -1;
  std::string out;
  std::string err;
};

/// A running program. Its standard output is a pipe; its standard error is a pipe or its own terminal, which is then
/// its controlling terminal. Throws std::runtime_error for failed system calls and for waits of more than two minutes.
/// The destructor kills the process.
class ChildProcess {
 public:
  explicit ChildProcess(const StartOptions& options);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// Reads until standard error matches the regular expression. Throws if it ends without a match.
  void WaitForError(const std::string& expression);
  /// Waits, without reading, until the process stops writing to standard error because the pipe is full.
  void WaitUntilErrorPipeIsFull() const;
  void Send(int signal) const;
  /// The process ID, even after the process has ended.
  [[nodiscard]] pid_t Number() const { return process_; }
  /// Closes the terminal. Output that has not been read yet is lost.
  void HangUp();
  /// Types on the terminal's keyboard.
  void Type(std::string_view keys) const;
  /// Whether the process has ended by itself; never waits.
  [[nodiscard]] bool HasEnded();
  /// Reads both streams to their ends and waits for the process.
  [[nodiscard]] ProcessResult Finish();

 private:
  void ReadSome();
  void Reap(int status);
  [[noreturn]] void GiveUp(const std::string& why) const;

  /// Both ends of a pipe or a terminal. This process closes the child's end once the child runs.
  struct Stream {
    env::FileDescriptor ours;
    env::FileDescriptor childs;
  };

  [[nodiscard]] static Stream MakePipe();
  [[nodiscard]] static Stream MakeTerminal(unsigned short columns);

  Stream out_;
  Stream err_;
  pid_t process_ = -1;
  bool ended_ = false;
  ProcessResult result_;
};

}  // namespace vantorium::batch
