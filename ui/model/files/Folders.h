#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vantorium::ui {

struct SubFolder {
  std::string name;
  bool link = false;  ///< a symbolic link to a folder
};

/// The folders of the local disk, as a folder tree shows them. Paths are native.
class Folders {
 public:
  virtual ~Folders() = default;
  /// Returns the folders in `folder` except hidden ones, sorted by name, ignoring case. Empty if `folder` cannot be
  /// read.
  [[nodiscard]] virtual std::vector<SubFolder> In(const std::filesystem::path& folder) const = 0;
  [[nodiscard]] virtual bool IsLink(const std::filesystem::path& folder) const = 0;
};

class LocalFolders : public Folders {
 public:
  [[nodiscard]] std::vector<SubFolder> In(const std::filesystem::path& folder) const override;
  [[nodiscard]] bool IsLink(const std::filesystem::path& folder) const override;
};

/// Returns the key by which a folder name is sorted: case matters only if nothing else differs.
[[nodiscard]] std::string FolderSortKey(const std::string& name);

}  // namespace vantorium::ui
