#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vantorium {

struct SubFolder {
  std::string name;
  bool link = false;  ///< a symbolic link to a folder
};

/// The folders of the local disk, as a folder tree shows them. Paths are native.
class Folders {
 public:
  virtual ~Folders() = default;
  /// The folders in `folder` but the hidden ones, sorted by name, in any case. None in a folder that can't be read.
  [[nodiscard]] virtual std::vector<SubFolder> In(const std::filesystem::path& folder) const = 0;
  [[nodiscard]] virtual bool IsLink(const std::filesystem::path& folder) const = 0;
};

class LocalFolders : public Folders {
 public:
  [[nodiscard]] std::vector<SubFolder> In(const std::filesystem::path& folder) const override;
  [[nodiscard]] bool IsLink(const std::filesystem::path& folder) const override;
};

/// Texts by which names of folders are sorted: upper and lower case are the same unless nothing else differs.
[[nodiscard]] std::string FolderSortKey(const std::string& name);

}  // namespace vantorium
