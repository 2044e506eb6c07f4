#include "ui/model/dialogs/PublishModel.h"

#include "env/Numbers.h"

#include <algorithm>

namespace vantorium {

std::string ServerKey(ServerField field, const std::string& key) {
  const bool isUserName = field == &ServerProfile::UserName;
  const bool isIndex = field == &ServerProfile::IndexPath || field == &ServerProfile::IndexFile;
  if (key == "\\" && !isUserName) return "/";
  if (key == " " && isIndex) return "_";
  return key;
}

PublishModel::PublishModel(std::filesystem::path file, MessageBoxPort& boxes)
    : boxes_(boxes), list_(std::move(file), boxes) {
  list_.Open();
}

const ServerProfile& PublishModel::Shown() const {
  static const ServerProfile kNone;
  const auto selected = list_.Selected();
  return selected ? list_.Profiles()[*selected] : kNone;
}

void PublishModel::Select(std::size_t index) {
  list_.Select(index);
  textTimeout = "0";
}

void PublishModel::Edit(ServerField field, const std::string& text) {
  if (ServerProfile* profile = list_.SelectedProfile()) profile->*field = text;
}

bool PublishModel::AddNewServer(const std::string& name) {
  if (!list_.AddNewServer(name)) return false;
  textTimeout = "0";
  canCancel_ = false;
  return true;
}

void PublishModel::DeleteServer() {
  list_.DeleteServer();
  textTimeout = "0";
  canCancel_ = false;
}

bool PublishModel::Accept() {
  ServerProfile* profile = list_.SelectedProfile();
  if (profile != nullptr && !ValidateSettings(*profile, HideIndexFile, boxes_)) return false;
  std::ignore = list_.SaveServerList();  // a message box reported any failure, and the run does not need the file
  queryPublish_ = true;
  return true;
}

void PublishModel::Cancel() {
  const auto& profiles = list_.Profiles();
  const auto before = std::ranges::find(profiles, list_.NameBefore(), &ServerProfile::ServerName);
  if (before != profiles.end()) Select(static_cast<std::size_t>(before - profiles.begin()));
  queryPublish_ = false;
}

std::int16_t PublishModel::GetTimeout() const {
  for (std::size_t size = textTimeout.size(); size > 0; --size) {
    if (const auto number = ParseNumber(std::string_view(textTimeout).substr(0, size))) return ToInt16(*number);
  }
  return 0;
}

}  // namespace vantorium
