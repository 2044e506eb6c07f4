#include "publish/ServerListFile.h"

#include "env/FileInput.h"
#include "env/FileOutput.h"
#include "env/INIText.h"
#include "env/Numbers.h"
#include "env/RuntimeFailure.h"
#include "env/mINIFileFunctions.h"
#include "publish/ServerCertificate.h"

#include <algorithm>

namespace vantorium::publish {
namespace {

constexpr std::string_view kSection = "PUBLISH";
constexpr const char* kOn = "1";

std::string ValueLine(const std::string& key, const std::string& value) {
  return key + "=\"" + value + "\"\r\n";
}

/// Older versions of the program never see these lines unless somebody uses them.
std::string OptionLines(const ServerProfile& profile, const std::string& index) {
  std::string lines;
  if (profile.Passive) lines += ValueLine("Passive" + index, kOn);
  if (profile.Encrypted) lines += ValueLine("Encrypted" + index, kOn);
  if (!profile.Fingerprint.empty()) lines += ValueLine("Fingerprint" + index, profile.Fingerprint);
  return lines;
}

std::string ProfileLines(const ServerProfile& profile, const std::string& index) {
  return ValueLine("ServerName" + index, profile.ServerName) + ValueLine("ServerURL" + index, profile.ServerURL) +
         ValueLine("UserName" + index, profile.UserName) +
         ValueLine("IndexFile" + index, profile.IndexPath + "/" + profile.IndexFile) +
         ValueLine("TimeOut" + index, std::to_string(profile.TimeOut)) + ValueLine("JumpTo" + index, profile.JumpTo) +
         OptionLines(profile, index);
}

}  // namespace

std::filesystem::path ServerListFileName(const std::filesystem::path& programFolder) {
  return programFolder / "vantorium.pub";
}

ServerListValues::ServerListValues(const std::filesystem::path& file) {
  try {
    text_ = env::ReadFileWhole(file, env::kMostINIBytes);
  } catch (const env::RuntimeFailure&) {
    return;
  }
  Index();
}

/// Keeps the lines after the section's line or, if there is none, only the last line of the file.
void ServerListValues::Index() {
  bool inSection = false;
  std::string_view line;
  for (std::string_view rest = text_; !rest.empty();) {
    line = env::TakeINILine(rest).content;
    if (inSection) Keep(line);
    inSection = inSection || env::IsSectionLine(line, kSection);
  }
  if (!inSection) Keep(line);
}

void ServerListValues::Keep(std::string_view line) {
  const auto equals = line.find('=');
  if (equals == std::string_view::npos) return;
  values_.try_emplace(env::AsciiUpper(line.substr(0, equals)), line.substr(equals + 1));
}

std::string ServerListValues::TextOrNothing(std::string_view key) const {
  const auto found = values_.find(env::AsciiUpper(key));
  return found == values_.end() ? std::string() : std::string(env::WithoutMarks(found->second));
}

void ServerListValues::ReadOptions(const std::string& number, ServerProfile& profile) const {
  profile.Passive = TextOrNothing("Passive" + number) == kOn;
  profile.Encrypted = TextOrNothing("Encrypted" + number) == kOn;
  profile.Fingerprint = NormalizedFingerprint(TextOrNothing("Fingerprint" + number)).value_or("");
}

std::string ServerListValues::Text(std::string_view key) const {
  const auto found = values_.find(env::AsciiUpper(key));
  if (found == values_.end()) throw env::RuntimeFailure(env::FailureKind::Preferences);
  return std::string(env::WithoutMarks(found->second));
}

std::int32_t ServerListValues::Integer(std::string_view key) const {
  return env::ParseInt32(Text(key));
}

bool FitsServerListFile(const ServerProfile& profile) {
  constexpr std::string_view kBreaks("\r\n\0", 3);
  const auto texts = {&profile.ServerName, &profile.ServerURL, &profile.UserName,   &profile.IndexPath,
                      &profile.IndexFile,  &profile.JumpTo,    &profile.Fingerprint};
  return std::ranges::none_of(
      texts, [&](const std::string* text) { return text->find_first_of(kBreaks) != std::string::npos; });
}

void WriteServerList(const std::vector<ServerProfile>& profiles, std::optional<std::size_t> selected,
                     const std::filesystem::path& file) {
  if (!std::ranges::all_of(profiles, FitsServerListFile)) throw env::RuntimeFailure(env::FailureKind::Preferences);
  const std::size_t preferred = selected ? *selected + 1 : 0;
  std::string text = "[" + std::string(kSection) + "]\r\n" + ValueLine("ServerCount", std::to_string(profiles.size())) +
                     ValueLine("PreferredServer", std::to_string(preferred));
  for (std::size_t i = 0; i < profiles.size(); ++i) text += ProfileLines(profiles[i], std::to_string(i + 1));

  std::error_code ignored;  // the write fails if the folder is missing
  std::filesystem::create_directories(file.parent_path(), ignored);
  env::WriteKeptFile(file, text);
}

}  // namespace vantorium::publish
