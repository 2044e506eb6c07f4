#include "app/batch/Password.h"

#include "env/FileDescriptor.h"

#include <cerrno>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace vantorium {
namespace {

/// Longer than any password. A longer first line means the wrong file, or a device without end.
constexpr std::size_t kLongest = 4096;

/// Returns nullopt also if the file cannot be read at all, such as a closed standard input.
std::optional<std::string> FirstLine(int file) {
  std::string line;
  for (char character = 0; character != '\n';) {
    const auto read = ::read(file, &character, 1);
    if (read < 0 && errno == EINTR) continue;
    if (read < 0 || line.size() > kLongest) return std::nullopt;
    if (read == 0) break;
    if (character != '\n') line += character;
  }
  if (line.size() > kLongest) return std::nullopt;
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

/// If standard input is a terminal, asks for the password and hides what is typed while this object exists.
class HiddenTyping {
 public:
  HiddenTyping() : isTerminal_(::tcgetattr(STDIN_FILENO, &before_) == 0) {
    if (!isTerminal_) return;
    termios hidden = before_;
    hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    hidden.c_lflag |= ECHONL;
    ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    std::ignore = WriteAll(STDERR_FILENO, "Password: ");
  }
  ~HiddenTyping() {
    if (isTerminal_) ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &before_);
  }
  HiddenTyping(const HiddenTyping&) = delete;
  HiddenTyping& operator=(const HiddenTyping&) = delete;

 private:
  termios before_ = {};
  bool isTerminal_;
};

}  // namespace

std::optional<std::string> ReadPassword(const std::string& file) {
  if (file == "-") {
    const HiddenTyping hidden;
    return FirstLine(STDIN_FILENO);
  }
  const FileDescriptor opened(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  return FirstLine(opened.Get());
}

}  // namespace vantorium
