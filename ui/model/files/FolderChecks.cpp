#include "ui/model/files/FolderChecks.h"

#include <algorithm>
#include <set>

namespace vantorium::ui {
namespace {

constexpr std::size_t kFoldersForATurn = 32;

bool IsHidden(const std::filesystem::path& name) {
  return name.native().starts_with('.');
}

}  // namespace

struct FolderChecks::Walk {
  env::EventLoop& loop;
  const std::function<bool()>& stop;
  std::vector<std::filesystem::path> checked = {};
  std::size_t listed = 0;
  bool stopped = false;

  void TakeTurn() {
    if (++listed % kFoldersForATurn != 0) return;
    loop.Turn();
    stopped = stopped || stop();
  }
};

void FolderChecks::Check(const std::filesystem::path& folder, bool checked, bool recursive) {
  Node* node = &root_;
  for (const std::filesystem::path& part : folder.relative_path()) {
    node = &node->nodes[FolderSortKey(part.string())];
    node->name = part.string();
  }
  node->own = checked;
  if (!recursive) return;
  node->below = checked;
  node->nodes.clear();
}

bool FolderChecks::IsChecked(const std::filesystem::path& folder) const {
  const Node* node = &root_;
  std::filesystem::path reached = folder.root_path();
  bool inherited = false;
  for (const std::filesystem::path& part : folder.relative_path()) {
    if (node != nullptr) inherited = node->below.value_or(inherited);
    reached /= part;
    inherited = inherited && !IsHidden(part) && !folders_.IsLink(reached);
    node = Find(node, part.string());
  }
  return node != nullptr ? node->own.value_or(inherited) : inherited;
}

std::optional<std::vector<std::filesystem::path>> FolderChecks::Expand(env::EventLoop& loop,
                                                                       const std::function<bool()>& stop) const {
  Walk walk{loop, stop};
  Visit(&root_, "/", false, walk);
  if (walk.stopped) return std::nullopt;
  return std::move(walk.checked);
}

bool FolderChecks::AnyChecked(const Node& node) {
  return node.own.value_or(false) || node.below.value_or(false) ||
         std::any_of(node.nodes.begin(), node.nodes.end(), [](const auto& child) { return AnyChecked(child.second); });
}

const FolderChecks::Node* FolderChecks::Find(const Node* parent, const std::string& name) {
  if (parent == nullptr || parent->nodes.empty()) return nullptr;
  const auto found = parent->nodes.find(FolderSortKey(name));
  return found == parent->nodes.end() ? nullptr : &found->second;
}

void FolderChecks::Visit(const Node* node, const std::filesystem::path& folder, bool inherited, Walk& walk) const {
  if (walk.stopped) return;
  if (node != nullptr ? node->own.value_or(inherited) : inherited) walk.checked.push_back(folder);
  if (node != nullptr ? node->below.value_or(inherited) : inherited) {
    VisitAllIn(node, folder, walk);
  } else if (node != nullptr) {
    VisitNodesIn(*node, folder, walk);
  }
}

void FolderChecks::VisitAllIn(const Node* node, const std::filesystem::path& folder, Walk& walk) const {
  walk.TakeTurn();
  std::set<std::string> visited;
  for (const SubFolder& child : folders_.In(folder)) {
    const Node* const known = Find(node, child.name);
    if (known != nullptr) visited.insert(child.name);
    Visit(known, folder / child.name, !child.link, walk);
  }
  if (node == nullptr) return;
  // A hidden folder is not listed but may have been checked individually.
  for (const auto& [key, child] : node->nodes) {
    if (!visited.contains(child.name)) Visit(&child, folder / child.name, false, walk);
  }
}

void FolderChecks::VisitNodesIn(const Node& node, const std::filesystem::path& folder, Walk& walk) const {
  for (const auto& [key, child] : node.nodes) Visit(&child, folder / child.name, false, walk);
}

}  // namespace vantorium::ui
