#pragma once

#include "env/EventLoop.h"
#include "ui/model/files/Folders.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vantorium {

/// The check boxes of a folder tree. Checking a folder with all below it only leaves a mark that the folders below
/// inherit, so that it costs nothing on a huge disk; a later check box inside takes precedence. A symbolic link and a
/// hidden folder inherit nothing: they are checked by themselves or not at all, and so no walk goes in a circle or
/// leaves the chosen folder. Paths are native and absolute.
class FolderChecks {
 public:
  explicit FolderChecks(const Folders& folders) : folders_(folders) {}

  /// The user checks or unchecks a folder; with `recursive` everything below it becomes the same.
  void Check(const std::filesystem::path& folder, bool checked, bool recursive);

  [[nodiscard]] bool IsChecked(const std::filesystem::path& folder) const;
  [[nodiscard]] bool AnyChecked() const { return AnyChecked(root_); }

  /// All checked folders in the order of the tree: a folder comes before those in it, its folders are sorted by name.
  /// Folders below a mark are looked up now; the event loop has its turns meanwhile. Nothing when `stop` answered true
  /// behind such a turn.
  [[nodiscard]] std::optional<std::vector<std::filesystem::path>> Expand(EventLoop& loop,
                                                                         const std::function<bool()>& stop) const;

 private:
  struct Node {
    std::string name;
    std::optional<bool> own;            ///< of the folder itself
    std::optional<bool> below;          ///< of all in it that have none of their own
    std::map<std::string, Node> nodes;  ///< by FolderSortKey
  };
  struct Walk;

  [[nodiscard]] static bool AnyChecked(const Node& node);
  [[nodiscard]] static const Node* Find(const Node* parent, const std::string& name);
  void Visit(const Node* node, const std::filesystem::path& folder, bool inherited, Walk& walk) const;
  void VisitAllIn(const Node* node, const std::filesystem::path& folder, Walk& walk) const;
  void VisitNodesIn(const Node& node, const std::filesystem::path& folder, Walk& walk) const;

  const Folders& folders_;
  Node root_;
};

}  // namespace vantorium
