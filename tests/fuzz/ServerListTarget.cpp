// The server list's file: a list that was read can be written and read back.
#include "publish/ServerList.h"
#include "publish/ServerListFile.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/fuzz/FuzzTarget.h"

#include <algorithm>

using namespace vantorium;

namespace {

/// The profiles without leading slashes in their paths, because each reading removes one.
std::vector<publish::ServerProfile> Comparable(const publish::ServerList& list) {
  std::vector<publish::ServerProfile> profiles = list.Profiles();
  for (publish::ServerProfile& profile : profiles) {
    profile.IndexPath.erase(0, std::min(profile.IndexPath.find_first_not_of('/'), profile.IndexPath.size()));
  }
  return profiles;
}

void CheckSelection(publish::ServerList& list) {
  fuzz::Require(list.Profiles().empty() != list.Selected().has_value(), "one profile is selected while there is any");
  fuzz::Require(!list.Selected() || *list.Selected() < list.Profiles().size(), "the selected profile is in the list");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fakes::TemporaryFolder folder;
  const std::string input = fuzz::InputText(data, size);
  const auto file = folder.Write("vantorium.pub", input);
  fakes::RecordingMessageBox boxes;
  publish::ServerList list(file, boxes);
  list.Open();
  CheckSelection(list);
  fuzz::Require(list.Profiles().size() <= input.size() + 1, "every profile but the default one has lines");
  // If reading fails, the list itself writes what it has read.
  const bool failed = std::ranges::any_of(boxes.boxes, [](const auto& box) { return box.title == "File Error"; });
  if (!failed) fuzz::Require(list.SaveServerList(), "a list can be written");

  boxes.boxes.clear();
  publish::ServerList again(file, boxes);
  again.Open();
  CheckSelection(again);
  fuzz::Require(boxes.boxes.empty(), "a written list is read without a message box");
  const bool isDefault = list.Profiles().empty() && again.Profiles().size() == 1;
  fuzz::Require(isDefault || Comparable(again) == Comparable(list), "the servers are read back");
  fuzz::Require(isDefault || again.Selected() == list.Selected(), "the selected server is read back");
  return 0;
}
