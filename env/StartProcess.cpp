#include "env/StartProcess.h"

#include "env/RuntimeFailure.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vantorium::env {
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
  if (words.empty()) throw RuntimeFailure(FailureKind::FileNotFound);
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
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

/// An ended process stays a zombie until its status is read: a thread waits for it.
void ForgetItsEnd(pid_t child) {
  try {
    std::thread([child] {
      while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
      }
    }).detach();
  } catch (const std::system_error&) {
    // Without a thread it stays a zombie until this process ends.
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

StartedProcess::StartedProcess(const ShellCommand& command)
    : process_(Spawn(command.words)),
      program_(command.words.front()),
      isWatched_(command.watched.count() > 0),
      end_(std::chrono::steady_clock::now() + command.watched) {}

bool StartedProcess::IsWatched() const {
  int status = 0;
  if (isWatched_ && ::waitpid(process_, &status, WNOHANG) == process_) {
    RefuseFailure(status, program_);
    return false;
  }
  if (std::chrono::steady_clock::now() < end_) return true;
  ForgetItsEnd(process_);
  return false;
}

void StartProcess(const ShellCommand& command) {
  constexpr std::chrono::milliseconds kPause{5};
  const StartedProcess process(command);
  while (process.IsWatched()) std::this_thread::sleep_for(kPause);
}

}  // namespace vantorium::env
