#include "app/batch/Password.h"

#include <fstream>
#include <iostream>

#include <termios.h>
#include <unistd.h>

namespace vantorium {
namespace {

/// Longer than any password. A file that goes on beyond it is another one, or a device without end.
constexpr std::size_t kLongest = 4096;

std::optional<std::string> FirstLine(std::istream& stream) {
  std::string line;
  char character = 0;
  while (stream.get(character) && character != '\n') {
    if (line.size() == kLongest) return std::nullopt;
    line += character;
  }
  if (stream.bad()) return std::nullopt;
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

/// Standard input where it is a terminal: asks for the password, which is not seen as long as this exists.
class HiddenTyping {
 public:
  HiddenTyping() : isTerminal_(::tcgetattr(STDIN_FILENO, &before_) == 0) {
    if (!isTerminal_) return;
    termios hidden = before_;
    hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    hidden.c_lflag |= ECHONL;
    ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    std::cerr << "Password: " << std::flush;
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
    return FirstLine(std::cin);
  }
  std::ifstream stream(file, std::ios::binary);
  if (!stream.is_open()) return std::nullopt;
  return FirstLine(stream);
}

}  // namespace vantorium
