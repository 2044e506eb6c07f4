#include "app/batch/Terminal.h"

#include "env/Text.h"

#include <algorithm>
#include <cstdio>

#include <fmt/format.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace vantorium {
namespace {

constexpr std::size_t kBarWidth = 24;
constexpr std::size_t kColumnsForABar = 70;
constexpr auto kRedrawEvery = std::chrono::milliseconds(100);

std::size_t TerminalWidth() {
  winsize size = {};
  return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

/// At most `columns` characters of UTF-8 text; a character of any width counts as one.
std::string CutTo(const std::string& text, std::size_t columns) {
  std::size_t at = 0;
  for (std::size_t used = 0; at < text.size(); ++at) {
    const bool begins = (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80;
    if (begins && used++ == columns) break;
  }
  return text.substr(0, at);
}

}  // namespace

ProgressStyle ChooseProgressStyle(bool quiet, bool verbose) {
  if (quiet) return ProgressStyle::None;
  if (verbose) return ProgressStyle::Lines;
  return ::isatty(STDERR_FILENO) == 1 ? ProgressStyle::Bar : ProgressStyle::None;
}

void Terminal::PrintMessage(const std::string& title, const std::string& text) {
  EraseBar();
  const std::string lines = ReplaceAll(ReplaceAll(text, kCrLf, "\n"), "\r", "\n");
  fmt::print(stderr, "{}: {}\n", title, lines);
}

void Terminal::ShowStatus(const std::string& text) {
  if (text.empty() || text == status_) return;
  status_ = text;
  if (style_ == ProgressStyle::Lines) fmt::print(stderr, "{}\n", text);
}

void Terminal::ShowProgress(std::int64_t value, std::int64_t maximum) {
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
  fmt::print(stderr, "\r\033[K");
  std::fflush(stderr);
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
  fmt::print(stderr, "\r{}\033[K", CutTo(line, columns - 1));
  std::fflush(stderr);
  barIsDrawn_ = true;
}

std::string Terminal::TimeLeft() const {
  const auto elapsed = std::chrono::duration<double>(SteadyClock::now() - start_).count();
  if (value_ <= 0 || elapsed < 1) return "";
  const auto left =
      static_cast<std::int64_t>(elapsed * static_cast<double>(maximum_ - value_) / static_cast<double>(value_));
  return fmt::format(", {}:{:02} left", left / 60, left % 60);
}

}  // namespace vantorium
