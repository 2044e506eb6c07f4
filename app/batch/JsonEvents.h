#pragma once

#include "app/batch/CommandLine.h"

#include <cstdint>
#include <string>

namespace vantorium::batch {

/// Prints the events of a run on standard output, one JSON object (RFC 8259, UTF-8) a line, for programs that start
/// this one:
///
///   {"event":"status","text":T}                            a text of the status bar or of the progress window
///   {"event":"progress","value":N,"maximum":N}             the bar of the whole run
///   {"event":"message","title":T,"text":T}                 a message box or a warning
///   {"event":"end","result":R,"index":P}                   the last line; R is success, failure or cancelled. P is the
///                                                          native path of a preview's index file; else left out
///
/// A text or a value repeated at once is printed only once. Output that cannot be written makes the command fail, but
/// does not decide the run.
class JsonEvents {
 public:
  void Status(const std::string& text);
  void Progress(std::int64_t value, std::int64_t maximum);
  void Message(const std::string& title, const std::string& text);
  /// `index` is empty except after a preview. Returns false if some output could not be written.
  [[nodiscard]] bool End(ExitCode result, const std::string& index);

 private:
  void Print(const std::string& line);

  bool written_ = true;
  std::string last_;
};

}  // namespace vantorium::batch
