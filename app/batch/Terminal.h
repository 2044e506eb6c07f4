#pragma once

#include "app/batch/JsonEvents.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace vantorium::batch {

enum class ProgressStyle { None, Bar, Lines };

/// Returns `text` made safe for a terminal: control characters except LF become \u and four digits, as in JSON, so that
/// a name cannot send commands to the terminal.
[[nodiscard]] std::string Harmless(std::string_view text);

/// Prints "vantorium-batch: " and the text on standard error, in one line. Failures are ignored.
void SayInOneLine(std::string_view text);

/// Prints a command's result on standard output. Returns false, after a message, if it cannot be written.
[[nodiscard]] bool PrintResult(std::string_view text);

/// Standard error as the user sees it: messages, each in its own paragraph, and below them the progress, as a bar that
/// is redrawn in place or as one line per text. A terminal that goes away is not a failure.
class Terminal {
 public:
  /// With `json` the events also go to standard output, see JsonEvents.
  explicit Terminal(ProgressStyle style, bool json = false) : style_(style) {
    if (json) events_.emplace();
  }
  ~Terminal() { EraseBar(); }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  /// Prints "title: text", keeping line breaks.
  void PrintMessage(const std::string& title, const std::string& text);
  /// Shows a text of the status bar or of the progress window. A text repeated at once is shown only once.
  void ShowStatus(const std::string& text);
  void ShowProgress(std::int64_t value, std::int64_t maximum);
  /// Starts a new run: the time left is computed from here.
  void StartClock();
  void EraseBar();
  /// nullopt without `json`.
  [[nodiscard]] std::optional<JsonEvents>& Events() { return events_; }

 private:
  using SteadyClock = std::chrono::steady_clock;

  void DrawBar();
  [[nodiscard]] std::string TimeLeft() const;

  ProgressStyle style_;
  std::optional<JsonEvents> events_;
  std::string status_;
  std::int64_t value_ = 0;
  std::int64_t maximum_ = 0;
  SteadyClock::time_point start_ = SteadyClock::now();
  SteadyClock::time_point drawn_;
  bool barIsDrawn_ = false;
};

/// Returns the style for the options; the bar only if standard error is a terminal.
[[nodiscard]] ProgressStyle ChooseProgressStyle(bool quiet, bool verbose);

}  // namespace vantorium::batch
