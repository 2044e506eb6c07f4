#include "tests/app/ChildProcess.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <regex>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vantorium::batch {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kPatience = 2min;
constexpr auto kLookAgainAfter = 10ms;

int Checked(int result, const char* what) {
  if (result < 0) throw std::runtime_error(std::string(what) + ": " + std::strerror(errno));
  return result;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

std::vector<std::string> Assignments(const std::map<std::string, std::string>& environment) {
  std::vector<std::string> assignments;
  for (const auto& [name, value] : environment) assignments.push_back(name + "=" + value);
  return assignments;
}

/// Runs in the child: makes only calls that are allowed between fork and exec.
[[noreturn]] void BecomeProgram(const StartOptions& options, int out, int err, char* const* arguments,
                                char* const* environment) {
  const bool onTerminal = options.standardError == StandardError::Terminal;
  ::setsid();
  if (onTerminal) ::ioctl(err, TIOCSCTTY, 0);
  const int in = onTerminal ? err : ::open(options.standardInput.c_str(), O_RDONLY | O_CLOEXEC);
  ::dup2(in, STDIN_FILENO);
  ::dup2(out, STDOUT_FILENO);
  ::dup2(err, STDERR_FILENO);
  if (!options.standardOutput.empty()) ::dup2(::open(options.standardOutput.c_str(), O_WRONLY), STDOUT_FILENO);
  for (const int stream : options.closedStreams) ::close(stream);
  ::signal(SIGHUP, options.outlivesTerminal ? SIG_IGN : SIG_DFL);
  if (::chdir(options.folder.c_str()) == 0) ::execve(arguments[0], arguments, environment);
  ::_exit(127);
}

/// Closes the stream at its end. A terminal reports its end as an error.
void AppendFrom(env::FileDescriptor& stream, std::string& text) {
  char bytes[4096];
  const auto read = ::read(stream.Get(), bytes, sizeof bytes);
  if (read > 0) {
    text.append(bytes, static_cast<std::size_t>(read));
  } else {
    std::ignore = stream.Close();
  }
}

int BytesWaiting(const env::FileDescriptor& stream) {
  int bytes = 0;
  Checked(::ioctl(stream.Get(), FIONREAD, &bytes), "FIONREAD");
  return bytes;
}

}  // namespace

// Makes the smallest possible pipe, so that a test can fill it.
ChildProcess::Stream ChildProcess::MakePipe() {
  int ends[2] = {};
  Checked(::pipe2(ends, O_CLOEXEC), "pipe2");
  Checked(::fcntl(ends[0], F_SETPIPE_SZ, 1), "F_SETPIPE_SZ");
  return {.ours = env::FileDescriptor(ends[0]), .childs = env::FileDescriptor(ends[1])};
}

ChildProcess::Stream ChildProcess::MakeTerminal(unsigned short columns) {
  const int master = Checked(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC), "posix_openpt");
  Checked(::grantpt(master), "grantpt");
  Checked(::unlockpt(master), "unlockpt");
  const int slave = Checked(::open(::ptsname(master), O_RDWR | O_NOCTTY | O_CLOEXEC), "opening a terminal");
  const winsize size = {.ws_row = 25, .ws_col = columns, .ws_xpixel = 0, .ws_ypixel = 0};
  Checked(::ioctl(slave, TIOCSWINSZ, &size), "TIOCSWINSZ");
  return {.ours = env::FileDescriptor(master), .childs = env::FileDescriptor(slave)};
}

ChildProcess::ChildProcess(const StartOptions& options)
    : out_(MakePipe()),
      err_(options.standardError == StandardError::Terminal ? MakeTerminal(options.columns) : MakePipe()) {
  std::vector<std::string> command = options.command;
  std::vector<std::string> assignments = Assignments(options.environment);
  const std::vector<char*> arguments = Pointers(command);
  const std::vector<char*> environment = Pointers(assignments);
  process_ = Checked(::fork(), "fork");
  if (process_ == 0) {
    BecomeProgram(options, out_.childs.Get(), err_.childs.Get(), arguments.data(), environment.data());
  }
  std::ignore = out_.childs.Close();
  std::ignore = err_.childs.Close();
}

ChildProcess::~ChildProcess() {
  if (ended_) return;
  ::kill(process_, SIGKILL);
  ::waitpid(process_, nullptr, 0);
}

void ChildProcess::WaitForError(const std::string& expression) {
  const std::regex wanted(expression);
  const auto deadline = Clock::now() + kPatience;
  while (!std::regex_search(result_.err, wanted)) {
    if (!err_.ours.IsOpen() || Clock::now() > deadline) GiveUp("no \"" + expression + "\" on standard error");
    ReadSome();
  }
}

void ChildProcess::WaitUntilErrorPipeIsFull() const {
  constexpr int kNearlyFull = 3500;
  constexpr int kUnchangedLooks = 50;
  const auto deadline = Clock::now() + kPatience;
  int before = 0;
  for (int unchanged = 0; unchanged < kUnchangedLooks;) {
    const int now = BytesWaiting(err_.ours);
    unchanged = now == before && now >= kNearlyFull ? unchanged + 1 : 0;
    before = now;
    if (Clock::now() > deadline) GiveUp("the pipe of standard error does not fill");
    std::this_thread::sleep_for(kLookAgainAfter);
  }
}

void ChildProcess::Send(int signal) const {
  Checked(::kill(process_, signal), "kill");
}

void ChildProcess::HangUp() {
  std::ignore = err_.ours.Close();
}

void ChildProcess::Type(std::string_view keys) const {
  const auto written = ::write(err_.ours.Get(), keys.data(), keys.size());
  if (written != static_cast<ssize_t>(keys.size())) GiveUp("the terminal takes no keys");
}

bool ChildProcess::HasEnded() {
  int status = 0;
  if (!ended_ && ::waitpid(process_, &status, WNOHANG) == process_) Reap(status);
  return ended_;
}

ProcessResult ChildProcess::Finish() {
  const auto deadline = Clock::now() + kPatience;
  while (out_.ours.IsOpen() || err_.ours.IsOpen() || !HasEnded()) {
    if (Clock::now() > deadline) GiveUp("it does not end");
    ReadSome();
  }
  return result_;
}

/// Waits briefly for bytes from either stream. Just pauses once both have ended.
void ChildProcess::ReadSome() {
  pollfd streams[] = {{.fd = out_.ours.Get(), .events = POLLIN, .revents = 0},
                      {.fd = err_.ours.Get(), .events = POLLIN, .revents = 0}};
  ::poll(streams, std::size(streams), kLookAgainAfter.count());
  if (streams[0].revents != 0) AppendFrom(out_.ours, result_.out);
  if (streams[1].revents != 0) AppendFrom(err_.ours, result_.err);
}

void ChildProcess::Reap(int status) {
  ended_ = true;
  result_.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void ChildProcess::GiveUp(const std::string& why) const {
  throw std::runtime_error("The program was given up: " + why + "\nstandard output:\n" + result_.out +
                           "\nstandard error:\n" + result_.err);
}

}  // namespace vantorium::batch
