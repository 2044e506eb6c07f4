#pragma once

#include "env/Clock.h"
#include "env/MessageBoxPort.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace vantorium {

inline constexpr const char* kUploadLogName = "ftplog.txt";

// The upload log in the program's folder: the log of the last run that went to a server, perhaps with the texts of
// failed runs without a server behind it. Lines end in CR LF.
//
//   header = empty line, "Vantorium 3.0 Upload Log (" time ")", underscores, two empty lines
//   log    = *(the text of a log box, line end)
//   footer = underscores, empty line, "End of Upload Log (" time ")", empty line
//   time   = yyyy/mm/dd hh:mm:ss            underscores = 70 of them
//
// No operation fails: the user hears of a failure from a message box, one for each attempt, and the run goes on.
class UploadLog {
 public:
  /// `programFolder`: a native path.
  UploadLog(const std::filesystem::path& programFolder, const Clock& clock, MessageBoxPort& boxes)
      : file_(programFolder / kUploadLogName), clock_(clock), boxes_(boxes) {}

  /// Begins the log of a run in place of the last one. The program's folder is made when it is missing.
  void WriteLogHeader();
  /// Adds text and a line end.
  void WriteLog(std::string_view text);
  /// WriteLog of what is left in the log box, then the footer.
  void WriteLogFooter(std::string_view logBox);

  /// Whether the program's folder is there, without which no log can be.
  [[nodiscard]] bool HasFolder() const;

 private:
  enum class Opening { Truncate, Append };

  void Write(std::string_view bytes, Opening opening);
  [[nodiscard]] std::string Now() const;

  std::filesystem::path file_;
  const Clock& clock_;
  MessageBoxPort& boxes_;
};

}  // namespace vantorium
