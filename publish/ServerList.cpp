#include "publish/ServerList.h"

#include "env/RuntimeFailure.h"
#include "publish/FTPPath.h"
#include "publish/ServerListFile.h"

#include <algorithm>

namespace vantorium::publish {
namespace {

constexpr const char* kDefaultIndexFile = "index.htm";
constexpr const char* kDefaultIndexText = "gallery/index.htm";
constexpr const char* kPlaceholderURL = "ftp.example.com";

void ShowFileError(env::MessageBoxPort& boxes, const std::string& doing, const env::RuntimeFailure& failure) {
  boxes.Show(env::BoxKind::Plain, env::BoxButtons::Ok, "File Error",
             "An Error has occurred " + doing + " the Server Information File:\r\r" + failure.Description() +
                 "\r\rError #" + std::to_string(failure.Number()));
}

void DropLeadingSlash(std::string& text) {
  if (text.starts_with('/')) text.erase(0, 1);
}

void DropTrailingSlash(std::string& text) {
  if (text.ends_with('/')) text.pop_back();
}

void SetIndexText(ServerProfile& profile, std::string_view indexText) {
  profile.IndexFile = FTPGetFileName(indexText);
  profile.IndexPath = FTPGetFilePath(indexText);
  while (profile.IndexPath.ends_with('/')) profile.IndexPath.pop_back();
}

void CleanUpPath(std::string& path) {
  DropLeadingSlash(path);
  DropTrailingSlash(path);
  path = env::ReplaceAll(path, "//", "/");
}

void CleanUpURL(std::string& url) {
  const auto scheme = url.find("://");
  if (scheme != std::string::npos) url.erase(0, scheme + 3);
  DropLeadingSlash(url);
  url = env::ReplaceAll(url, "//", "/");
}

}  // namespace

bool ValidateSettings(ServerProfile& profile, bool hideIndexFile, env::MessageBoxPort& boxes) {
  CleanUpPath(profile.IndexPath);
  CleanUpURL(profile.ServerURL);
  std::string& file = profile.IndexFile;
  if (file.find('/') != std::string::npos) {
    if (!hideIndexFile) {
      boxes.Critical("Invalid Index File Name", "The Gallery Index File Name may not contain any path specifications.");
      return false;
    }
    file.clear();
  }
  if (file.empty()) file = kDefaultIndexFile;
  return true;
}

void ServerList::Open() {
  profiles_.clear();
  selected_.reset();
  nameBefore_.clear();
  try {
    Read();
  } catch (const env::RuntimeFailure& failure) {
    ShowFileError(boxes_, "reading", failure);
    std::ignore = SaveServerList();
  }
}

void ServerList::Read() {
  const ServerListValues values(file_);
  const std::int32_t count = values.Integer("ServerCount");
  const std::int32_t preferred = values.Integer("PreferredServer");
  if (count == 0) {
    AddServerProfile({.ServerName = "Server", .ServerURL = kPlaceholderURL, .UserName = "username"}, kDefaultIndexText);
    nameBefore_ = profiles_.back().ServerName;
    std::ignore = SaveServerList();
    return;
  }
  for (std::int32_t number = 1; number <= count; ++number) ReadProfile(values, number);
  SelectPreferred(preferred);
}

void ServerList::ReadProfile(const ServerListValues& values, std::int32_t number) {
  const std::string index = std::to_string(number);
  ServerProfile profile;
  profile.ServerName = values.Text("ServerName" + index);
  profile.ServerURL = values.Text("ServerURL" + index);
  profile.UserName = values.Text("UserName" + index);
  const std::string indexText = values.Text("IndexFile" + index);
  profile.TimeOut = values.Integer("TimeOut" + index);
  profile.JumpTo = values.Text("JumpTo" + index);
  values.ReadOptions(index, profile);
  AddServerProfile(std::move(profile), indexText);
}

/// `preferred` counts from 1; a number outside the list selects the first profile.
void ServerList::SelectPreferred(std::int32_t preferred) {
  // A count below 0 leaves nothing to select.
  if (profiles_.empty()) throw env::RuntimeFailure(env::FailureKind::SubscriptOutOfRange);
  const bool valid = preferred >= 1 && static_cast<std::size_t>(preferred) <= profiles_.size();
  Select(valid ? static_cast<std::size_t>(preferred) - 1 : 0);
  nameBefore_ = profiles_[*selected_].ServerName;
}

bool ServerList::SaveServerList() {
  try {
    WriteServerList(profiles_, selected_, file_);
    return true;
  } catch (const env::RuntimeFailure& failure) {
    ShowFileError(boxes_, "writing", failure);
    return false;
  }
}

void ServerList::AddServerProfile(ServerProfile profile, std::string_view indexText) {
  SetIndexText(profile, indexText);
  if (!FitsServerListFile(profile)) {
    boxes_.Show(env::BoxKind::Plain, env::BoxButtons::Ok, "Error adding Server",
                "An Error occurred trying to add a Server: " +
                    env::RuntimeFailure(env::FailureKind::Preferences).Description());
    return;
  }
  profiles_.push_back(std::move(profile));
  Select(profiles_.size() - 1);
}

bool ServerList::AddNewServer(const std::string& name) {
  if (std::ranges::find(profiles_, name, &ServerProfile::ServerName) != profiles_.end()) {
    boxes_.Critical("Name Exists", "A Server with this name has already been defined.  Please use a different name.");
    return false;
  }
  AddServerProfile({.ServerName = name}, kDefaultIndexText);
  std::ignore = SaveServerList();
  return true;
}

void ServerList::DeleteServer() {
  if (!selected_) return;
  profiles_.erase(profiles_.begin() + static_cast<std::ptrdiff_t>(*selected_));
  if (profiles_.empty()) {
    selected_.reset();
  } else {
    Select(std::min(*selected_, profiles_.size() - 1));
  }
}

void ServerList::RememberCertificate(const std::string& host, const std::string& fingerprint) {
  bool isKnown = false;
  for (ServerProfile& profile : profiles_) {
    if (!profile.Encrypted || !env::EqualsIgnoringCase(profile.ServerURL, host)) continue;
    profile.Fingerprint = fingerprint;
    isKnown = true;
  }
  if (isKnown) std::ignore = SaveServerList();
}

void ServerList::Select(std::size_t index) {
  if (index >= profiles_.size()) throw env::RuntimeFailure(env::FailureKind::SubscriptOutOfRange);
  selected_ = index;
}

}  // namespace vantorium::publish
