#include "publish/UploadLog.h"

#include "env/FileDescriptor.h"
#include "env/NeighbourFile.h"
#include "env/OpenFolder.h"
#include "env/RuntimeFailure.h"
#include "env/Text.h"

#include <fcntl.h>
#include <fmt/format.h>

namespace vantorium::publish {
namespace {

std::string Underscores() {
  return std::string(70, '_');
}

std::string AsLines(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const std::string_view line : lines) text.append(line).append(env::kCrLf);
  return text;
}

/// Opens with O_NONBLOCK, so that a pipe of that name does not block the program.
int OpenToWrite(const std::filesystem::path& file, int more) {
  return ::open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | more, 0666);
}

void WriteToFile(const std::filesystem::path& path, std::string_view bytes, int opening) {
  env::FileDescriptor file(OpenToWrite(path, opening));
  if (!file.IsOpen()) env::ThrowFileAccess(path);
  if (!env::WriteAll(file.Get(), bytes) || !file.Close()) env::ThrowFileAccess(path);
}

}  // namespace

void UploadLog::WriteLogHeader() {
  std::error_code ignored;  // opening the file fails if the folder is missing
  std::filesystem::create_directories(file_.parent_path(), ignored);
  Write(AsLines({"", "Vantorium 3.0 Upload Log (" + Now() + ")", Underscores(), "", ""}), Opening::Truncate);
}

void UploadLog::WriteLog(std::string_view text) {
  Write(AsLines({text}), Opening::Append);
}

void UploadLog::WriteLogFooter(std::string_view logBox) {
  WriteLog(logBox);
  Write(AsLines({Underscores(), "", "End of Upload Log (" + Now() + ")", ""}), Opening::Append);
}

bool UploadLog::HasFolder() const {
  return env::IsFolder(file_.parent_path());
}

void UploadLog::Write(std::string_view bytes, Opening opening) {
  try {
    WriteToFile(file_, bytes, opening == Opening::Truncate ? O_TRUNC : O_APPEND);
  } catch (const env::RuntimeFailure& failure) {
    boxes_.Critical("Error writing Log", "An error has occurred writing the log file: \r\r" + failure.Description());
  }
}

std::string UploadLog::Now() const {
  const env::CivilTime now = clock_.Now();
  return fmt::format("{:04}/{:02}/{:02} {:02}:{:02}:{:02}", now.year, now.month, now.day, now.hour, now.minute,
                     now.second);
}

}  // namespace vantorium::publish
