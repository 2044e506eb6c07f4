#include "env/StartProcess.h"

#include "env/RuntimeFailure.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <optional>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vantorium {
namespace {

/// How the new process differs from this one.
class SpawnSettings {
 public:
  SpawnSettings() {
    ::posix_spawn_file_actions_init(&files_);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
      ::posix_spawn_file_actions_addopen(&files_, stream, "/dev/null", O_RDWR, 0);
    }
    ::posix_spawnattr_init(&attributes_);
    sigset_t signals;
    ::sigemptyset(&signals);
    ::posix_spawnattr_setsigmask(&attributes_, &signals);
    for (const int signal : {SIGHUP, SIGINT, SIGPIPE, SIGTERM, SIGXFSZ}) ::sigaddset(&signals, signal);
    ::posix_spawnattr_setsigdefault(&attributes_, &signals);
    ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
  }
  ~SpawnSettings() {
    ::posix_spawnattr_destroy(&attributes_);
    ::posix_spawn_file_actions_destroy(&files_);
  }
  SpawnSettings(const SpawnSettings&) = delete;
  SpawnSettings& operator=(const SpawnSettings&) = delete;

  [[nodiscard]] const posix_spawn_file_actions_t* Files() const { return &files_; }
  [[nodiscard]] const posix_spawnattr_t* Attributes() const { return &attributes_; }

 private:
  posix_spawn_file_actions_t files_ = {};
  posix_spawnattr_t attributes_ = {};
};

pid_t Spawn(std::vector<std::string> words) {
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  const SpawnSettings settings;
  pid_t child = 0;
  const int error =
      ::posix_spawnp(&child, arguments[0], settings.Files(), settings.Attributes(), arguments.data(), ::environ);
  if (error != 0) {
    throw RuntimeFailure(error == ENOENT ? FailureKind::FileNotFound : FailureKind::FileAccess,
                         words.front() + ": " + std::strerror(error));
  }
  return child;
}

/// Waits for the end of a process; nothing when it goes on for longer than `watched`.
std::optional<int> StatusWithin(pid_t child, std::chrono::milliseconds watched) {
  constexpr std::chrono::milliseconds kPause{5};
  const auto end = std::chrono::steady_clock::now() + watched;
  int status = 0;
  while (::waitpid(child, &status, WNOHANG) != child) {
    if (std::chrono::steady_clock::now() >= end) return std::nullopt;
    std::this_thread::sleep_for(kPause);
  }
  return status;
}

/// The system keeps a process that has ended until somebody asks how.
void ForgetItsEnd(pid_t child) {
  try {
    std::thread([child] {
      while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
      }
    }).detach();
  } catch (const std::system_error&) {
    // Without a thread the system keeps it until this process ends.
  }
}

void RefuseFailure(int status, const std::string& program) {
  constexpr int kCannotRun = 126;
  constexpr int kNotFound = 127;
  if (WIFSIGNALED(status)) {
    throw RuntimeFailure(FailureKind::FileAccess, program + ": " + ::strsignal(WTERMSIG(status)));
  }
  const int code = WEXITSTATUS(status);
  if (code == 0) return;
  if (code == kNotFound) throw RuntimeFailure(FailureKind::FileNotFound);
  if (code == kCannotRun) throw RuntimeFailure(FailureKind::FileAccess);
  throw RuntimeFailure(FailureKind::FileAccess, program + " ended with the exit code " + std::to_string(code));
}

}  // namespace

void StartProcess(const ShellCommand& command) {
  if (command.words.empty()) throw RuntimeFailure(FailureKind::FileNotFound);
  const pid_t child = Spawn(command.words);
  if (command.watched.count() > 0) {
    if (const auto status = StatusWithin(child, command.watched)) {
      return RefuseFailure(*status, command.words.front());
    }
  }
  ForgetItsEnd(child);
}

}  // namespace vantorium
