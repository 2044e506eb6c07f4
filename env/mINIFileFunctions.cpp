#include "env/mINIFileFunctions.h"

#include "env/FileInput.h"
#include "env/FileOutput.h"
#include "env/INIText.h"
#include "env/Numbers.h"
#include "env/RuntimeFailure.h"

namespace vantorium::env {
namespace {

void RefuseLineBreaks(std::string_view text) {
  if (text.find_first_of(std::string_view("\r\n\0", 3)) != std::string_view::npos) {
    throw RuntimeFailure(FailureKind::Preferences);
  }
}

}  // namespace

std::string ReadINIFile(const std::filesystem::path& file) {
  try {
    return ReadFileWhole(file, kMostINIBytes);
  } catch (const RuntimeFailure& failure) {
    if (failure.Number() != static_cast<std::int32_t>(FailureKind::FileNotFound)) throw;
    return {};
  }
}

std::string ReadINIString(std::string_view section, std::string_view key, const std::filesystem::path& file) {
  auto value = FindINIString(ReadFileWhole(file, kMostINIBytes), section, key);
  if (!value) throw RuntimeFailure(FailureKind::Preferences);
  return *std::move(value);
}

std::int32_t ReadINIInteger(std::string_view section, std::string_view key, const std::filesystem::path& file) {
  std::string text;
  try {
    text = ReadINIString(section, key, file);
  } catch (const RuntimeFailure&) {
    throw RuntimeFailure(FailureKind::Preferences);
  }
  return ParseInt32(text);
}

void WriteINIString(std::string_view section, std::string_view key, std::string_view value,
                    const std::filesystem::path& file) {
  for (const std::string_view text : {section, key, value}) RefuseLineBreaks(text);
  try {
    // An existing file that cannot be read must not be replaced by one with a single value.
    WriteKeptFile(file, WithINIString(ReadINIFile(file), section, key, value));
  } catch (const RuntimeFailure&) {
    throw RuntimeFailure(FailureKind::Preferences);
  }
}

}  // namespace vantorium::env
