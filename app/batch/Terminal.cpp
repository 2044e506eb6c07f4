#include "app/batch/Terminal.h"

#include "env/FileDescriptor.h"
#include "env/Text.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>
#include <tuple>

#include <fmt/format.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace vantorium::batch {
namespace {

constexpr std::size_t kBarWidth = 24;
constexpr std::size_t kColumnsForABar = 70;
constexpr auto kRedrawEvery = std::chrono::milliseconds(100);

std::size_t TerminalWidth() {
  winsize size = {};
  return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

/// Returns at most `columns` characters of UTF-8 text; a character of any width counts as one.
std::string CutTo(const std::string& text, std::size_t columns) {
  std::size_t at = 0;
  for (std::size_t used = 0; at < text.size(); ++at) {
    const bool begins = (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80;
    if (begins && used++ == columns) break;
  }
  return text.substr(0, at);
}

/// Failures are ignored.
void Say(std::string_view text) {
  std::ignore = env::WriteAllToStream(STDERR_FILENO, text);
}

std::string OneLine(std::string_view text) {
  return env::ReplaceAll(Harmless(text), "\n", "\\u000A");
}

/// Returns the number of bytes of the first UTF-8 character of `text`; 1 for a byte that begins none.
std::size_t CharacterSize(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
  if (text.size() < size) return 1;
  const auto follows = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
  return std::ranges::all_of(text.substr(1, size - 1), follows) ? size : 1;
}

/// Returns the code of a character that a terminal may take for a command: the control characters of ASCII and those
/// from 0x80 on, in UTF-8 or as single bytes. Returns nullopt for any other.
std::optional<unsigned> ControlCodeOf(std::string_view character) {
  const auto byte = static_cast<unsigned char>(character.back());
  const bool isSecondSet = byte >= 0x80 && byte < 0xA0;
  if (character.size() == 1 && (byte < 0x20 || byte == 0x7F || isSecondSet)) return byte;
  if (character.size() == 2 && character[0] == '\xC2' && isSecondSet) return byte;
  return std::nullopt;
}

}  // namespace

std::string Harmless(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const std::string_view character = text.substr(0, CharacterSize(text));
    const auto code = character == "\n" ? std::nullopt : ControlCodeOf(character);
    result += code ? fmt::format("\\u{:04X}", *code) : std::string(character);
    text.remove_prefix(character.size());
  }
  return result;
}

void SayInOneLine(std::string_view text) {
  Say("vantorium-batch: " + OneLine(text) + "\n");
}

bool PrintResult(std::string_view text) {
  const bool onTerminal = ::isatty(STDOUT_FILENO) == 1;
  if (env::WriteAllToStream(STDOUT_FILENO, onTerminal ? Harmless(text) : std::string(text))) return true;
  SayInOneLine(std::string("The output cannot be written: ") + std::strerror(errno));
  return false;
}

ProgressStyle ChooseProgressStyle(bool quiet, bool verbose) {
  if (quiet) return ProgressStyle::None;
  if (verbose) return ProgressStyle::Lines;
  return ::isatty(STDERR_FILENO) == 1 ? ProgressStyle::Bar : ProgressStyle::None;
}

void Terminal::PrintMessage(const std::string& title, const std::string& text) {
  if (events_) events_->Message(title, text);
  EraseBar();
  const std::string lines = env::ReplaceAll(env::ReplaceAll(text, env::kCrLf, "\n"), "\r", "\n");
  Say(fmt::format("{}: {}\n", OneLine(title), Harmless(lines)));
}

void Terminal::ShowStatus(const std::string& text) {
  if (events_) events_->Status(text);
  const std::string line = OneLine(text);
  if (line.empty() || line == status_) return;
  status_ = line;
  if (style_ == ProgressStyle::Lines) Say(line + "\n");
}

void Terminal::ShowProgress(std::int64_t value, std::int64_t maximum) {
  if (events_) events_->Progress(value, maximum);
  value_ = std::min(value, maximum);  // a folder can grow while it is sent
  maximum_ = maximum;
  const auto now = SteadyClock::now();
  if (style_ != ProgressStyle::Bar || now - drawn_ < kRedrawEvery) return;
  drawn_ = now;
  DrawBar();
}

void Terminal::StartClock() {
  start_ = SteadyClock::now();
}

void Terminal::EraseBar() {
  if (!barIsDrawn_) return;
  Say("\r\033[K");
  barIsDrawn_ = false;
}

void Terminal::DrawBar() {
  const double share = maximum_ > 0 ? static_cast<double>(value_) / static_cast<double>(maximum_) : 0;
  const auto filled = static_cast<std::size_t>(share * static_cast<double>(kBarWidth));
  const std::size_t columns = TerminalWidth();
  std::string line = fmt::format("{:3.0f}% {}/{}{}  {}", share * 100, value_, maximum_, TimeLeft(), status_);
  if (columns >= kColumnsForABar) {
    line = fmt::format("[{}{}] ", std::string(filled, '='), std::string(kBarWidth - filled, ' ')) + line;
  }
  Say("\r" + CutTo(line, columns - 1) + "\033[K");
  barIsDrawn_ = true;
}

std::string Terminal::TimeLeft() const {
  const auto elapsed = std::chrono::duration<double>(SteadyClock::now() - start_).count();
  if (value_ <= 0 || elapsed < 1) return "";
  const auto left =
      static_cast<std::int64_t>(elapsed * static_cast<double>(maximum_ - value_) / static_cast<double>(value_));
  return fmt::format(", {}:{:02} left", left / 60, left % 60);
}

}  // namespace vantorium::batch
