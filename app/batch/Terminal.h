#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace vantorium {

enum class ProgressStyle { None, Bar, Lines };

/// `text` as it may reach a terminal: control characters but LF are written as \u and four digits, as JSON has them, so
/// that a name cannot give the terminal commands.
[[nodiscard]] std::string Harmless(std::string_view text);

/// Prints "vantorium-batch: " and the text on standard error. What is said there never decides anything: it may be
/// lost.
void SayInOneLine(std::string_view text);

/// Prints a command's result on standard output. False, after a message, when it cannot be written.
[[nodiscard]] bool PrintResult(std::string_view text);

/// Standard error as the user sees it: messages, each a paragraph of its own, and below them the progress, which is a
/// bar that is drawn over itself, or a line for each text. A terminal that goes away is no failure.
class Terminal {
 public:
  explicit Terminal(ProgressStyle style) : style_(style) {}
  ~Terminal() { EraseBar(); }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  /// Prints "title: text", line breaks kept.
  void PrintMessage(const std::string& title, const std::string& text);
  /// A text of the status bar or of the progress window. The same text twice in a row is shown once.
  void ShowStatus(const std::string& text);
  void ShowProgress(std::int64_t value, std::int64_t maximum);
  /// A new run: the time left is reckoned from here.
  void StartClock();
  void EraseBar();

 private:
  using SteadyClock = std::chrono::steady_clock;

  void DrawBar();
  [[nodiscard]] std::string TimeLeft() const;

  ProgressStyle style_;
  std::string status_;
  std::int64_t value_ = 0;
  std::int64_t maximum_ = 0;
  SteadyClock::time_point start_ = SteadyClock::now();
  SteadyClock::time_point drawn_;
  bool barIsDrawn_ = false;
};

/// The style that fits the options and what standard error is.
[[nodiscard]] ProgressStyle ChooseProgressStyle(bool quiet, bool verbose);

}  // namespace vantorium
