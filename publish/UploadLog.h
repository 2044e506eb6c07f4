#pragma once

#include "env/Clock.h"
#include "env/MessageBoxPort.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace vantorium::publish {

inline constexpr const char* kUploadLogName = "ftplog.txt";

// The upload log in the program's folder: the log of the last run that used a server, perhaps followed by the texts of
// failed runs without one. Lines end in CR LF.
//
//   header = empty line, "Vantorium 3.0 Upload Log (" time ")", underscores, two empty lines
//   log    = *(the text of a log box, line end)
//   footer = underscores, empty line, "End of Upload Log (" time ")", empty line
//   time   = yyyy/mm/dd hh:mm:ss            underscores = 70 of them
//
// Failures never propagate; each is shown in a message box, and the run continues.
class UploadLog {
 public:
  /// `programFolder`: a native path.
  UploadLog(const std::filesystem::path& programFolder, const env::Clock& clock, env::MessageBoxPort& boxes)
      : file_(programFolder / kUploadLogName), clock_(clock), boxes_(boxes) {}

  /// Starts the log of a run, replacing the last one. Creates the program's folder if it is missing.
  void WriteLogHeader();
  /// Appends text and a line end.
  void WriteLog(std::string_view text);
  /// Appends the remaining text of the log box, then the footer.
  void WriteLogFooter(std::string_view logBox);

  /// Whether the program's folder exists; without it there can be no log.
  [[nodiscard]] bool HasFolder() const;

 private:
  enum class Opening { Truncate, Append };

  void Write(std::string_view bytes, Opening opening);
  [[nodiscard]] std::string Now() const;

  std::filesystem::path file_;
  const env::Clock& clock_;
  env::MessageBoxPort& boxes_;
};

}  // namespace vantorium::publish
