#include "app/batch/Password.h"

#include "env/FileDescriptor.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace vantorium::batch {
namespace {

/// Longer than any password. A longer first line means the wrong file, or a device without end.
constexpr std::size_t kLongest = 4096;

// A signal handler can only reach a global.
volatile std::sig_atomic_t endingSignal = 0;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void NoteSignal(int signal) {
  endingSignal = signal;
}

/// Returns nullopt also if the file cannot be read at all, such as a closed standard input or a terminal on which the
/// user typed the end of the file (Ctrl+D) instead of a password.
std::optional<std::string> FirstLine(int file) {
  std::string line;
  for (char character = 0; character != '\n';) {
    const auto read = ::read(file, &character, 1);
    if (read < 0 && errno == EINTR) continue;
    if (read < 0 || line.size() > kLongest) return std::nullopt;
    if (read == 0 && line.empty() && ::isatty(file) == 1) return std::nullopt;
    if (read == 0) break;
    if (character != '\n') line += character;
  }
  if (line.size() > kLongest) return std::nullopt;
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

/// The signals that end the process, most likely while it waits for the user to type.
constexpr std::array kEndingSignals = {SIGHUP, SIGINT, SIGQUIT, SIGTERM};

/// If standard input is a terminal, asks for the password and hides what is typed while this object exists. A signal
/// that would end the process ends it only after the terminal shows what is typed again.
class HiddenTyping {
 public:
  HiddenTyping() : isTerminal_(::tcgetattr(STDIN_FILENO, &shown_) == 0) {
    if (!isTerminal_) return;
    sigset_t ending = {};
    ::sigemptyset(&ending);
    for (const int signal : kEndingSignals) ::sigaddset(&ending, signal);
    ::pthread_sigmask(SIG_BLOCK, &ending, &delivered_);
    for (std::size_t i = 0; i < kEndingSignals.size(); ++i) ::sigaction(kEndingSignals[i], nullptr, &actions_[i]);
    Handle(NoteSignal);
    termios hidden = shown_;
    hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    hidden.c_lflag |= ECHONL;
    ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    std::ignore = env::WriteAll(STDERR_FILENO, "Password: ");
  }
  ~HiddenTyping() {
    if (!isTerminal_) return;
    ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &shown_);
    Handle(nullptr);
    ::pthread_sigmask(SIG_SETMASK, &delivered_, nullptr);
    if (endingSignal != 0) ::raise(endingSignal);
  }
  HiddenTyping(const HiddenTyping&) = delete;
  HiddenTyping& operator=(const HiddenTyping&) = delete;

  /// Waits until a line can be read. Returns false if a signal ends the process. Signals are delivered only during this
  /// wait, so that none is missed before it.
  [[nodiscard]] bool WaitForLine() const {
    if (!isTerminal_) return true;
    pollfd input = {.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
    while (::ppoll(&input, 1, nullptr, &delivered_) < 0 && errno == EINTR) {
      if (endingSignal != 0) return false;
    }
    return true;
  }

 private:
  /// Lets `handler` handle the signals, or what handled them before if there is none. An ignored signal stays ignored.
  void Handle(void (*handler)(int)) const {
    for (std::size_t i = 0; i < kEndingSignals.size(); ++i) {
      struct sigaction action = actions_[i];
      if (action.sa_handler == SIG_IGN) continue;
      if (handler != nullptr) action.sa_handler = handler;
      ::sigaction(kEndingSignals[i], &action, nullptr);
    }
  }

  termios shown_ = {};
  bool isTerminal_;
  sigset_t delivered_ = {};
  std::array<struct sigaction, kEndingSignals.size()> actions_ = {};
};

}  // namespace

std::optional<std::string> ReadPassword(const std::string& file) {
  if (file == "-") {
    const HiddenTyping typing;
    return typing.WaitForLine() ? FirstLine(STDIN_FILENO) : std::nullopt;
  }
  const env::FileDescriptor opened(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  return FirstLine(opened.Get());
}

}  // namespace vantorium::batch
