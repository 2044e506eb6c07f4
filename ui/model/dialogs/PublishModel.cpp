#include "ui/model/dialogs/PublishModel.h"

#include "env/Numbers.h"

#include <algorithm>

namespace vantorium::ui {

std::string ServerKey(ServerField field, const std::string& key) {
  const bool isUserName = field == &publish::ServerProfile::UserName;
  const bool isIndex = field == &publish::ServerProfile::IndexPath || field == &publish::ServerProfile::IndexFile;
  if (key == "\\" && !isUserName) return "/";
  if (key == " " && isIndex) return "_";
  return key;
}

PublishModel::PublishModel(std::filesystem::path file, env::MessageBoxPort& boxes)
    : boxes_(boxes), list_(std::move(file), boxes) {
  list_.Open();
}

const publish::ServerProfile& PublishModel::Shown() const {
  static const publish::ServerProfile kNone;
  const auto selected = list_.Selected();
  return selected ? list_.Profiles()[*selected] : kNone;
}

void PublishModel::Select(std::size_t index) {
  list_.Select(index);
  textTimeout = "0";
}

void PublishModel::Edit(ServerField field, const std::string& text) {
  publish::ServerProfile* profile = list_.SelectedProfile();
  if (profile == nullptr) return;
  if (field == &publish::ServerProfile::ServerURL && profile->ServerURL != text) profile->Fingerprint.clear();
  profile->*field = text;
}

void PublishModel::Check(ServerSwitch box, bool checked) {
  if (publish::ServerProfile* profile = list_.SelectedProfile()) profile->*box = checked;
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
  publish::ServerProfile* profile = list_.SelectedProfile();
  if (profile != nullptr && !publish::ValidateSettings(*profile, HideIndexFile, boxes_)) return false;
  std::ignore = list_.SaveServerList();  // a message box reported any failure, and the run does not need the file
  queryPublish_ = true;
  return true;
}

void PublishModel::Cancel() {
  const auto& profiles = list_.Profiles();
  const auto before = std::ranges::find(profiles, list_.NameBefore(), &publish::ServerProfile::ServerName);
  if (before != profiles.end()) Select(static_cast<std::size_t>(before - profiles.begin()));
  queryPublish_ = false;
}

std::int16_t PublishModel::GetTimeout() const {
  for (std::size_t size = textTimeout.size(); size > 0; --size) {
    if (const auto number = env::ParseNumber(std::string_view(textTimeout).substr(0, size)))
      return env::ToInt16(*number);
  }
  return 0;
}

}  // namespace vantorium::ui
