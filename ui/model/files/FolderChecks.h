#pragma once

#include "env/EventLoop.h"
#include "ui/model/files/Folders.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vantorium::ui {

/// The check boxes of a folder tree. Checking a folder recursively only leaves a mark that the folders below inherit,
/// so it costs nothing on a huge disk; a later check inside takes precedence. Symbolic links and hidden folders inherit
/// nothing: they are checked individually or not at all, so no walk runs in a circle or leaves the chosen folder. Paths
/// are native and absolute.
class FolderChecks {
 public:
  explicit FolderChecks(const Folders& folders) : folders_(folders) {}

  /// Checks or unchecks a folder; with `recursive` also everything below it.
  void Check(const std::filesystem::path& folder, bool checked, bool recursive);

  [[nodiscard]] bool IsChecked(const std::filesystem::path& folder) const;
  [[nodiscard]] bool AnyChecked() const { return AnyChecked(root_); }

  /// Returns all checked folders in the order of the tree: a folder comes before the folders in it, which are sorted by
  /// name. Folders below a mark are looked up now; the event loop gets its turns meanwhile. Returns nullopt if `stop`
  /// returned true after such a turn.
  [[nodiscard]] std::optional<std::vector<std::filesystem::path>> Expand(env::EventLoop& loop,
                                                                         const std::function<bool()>& stop) const;

 private:
  struct Node {
    std::string name;
    std::optional<bool> own;            ///< state of the folder itself
    std::optional<bool> below;          ///< state of all folders in it that have none of their own
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

}  // namespace vantorium::ui
