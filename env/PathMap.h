#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vantorium {

/// The one table between Windows path text, which the program uses everywhere, and the system's own paths.
class PathMap {
 public:
  /// `drives`: folder of each drive letter (capitals), native and absolute. With none, `C:` is `home` and `Z:` is `/`.
  explicit PathMap(std::map<char, std::string> drives, const std::filesystem::path& home = "/");

  /// One in which no letter stands for anything.
  [[nodiscard]] static PathMap WithoutDrives();

  /// The native path of path text: a letter and a colon stand for the drive's folder, one leading separator for the
  /// root, anything else is relative to the working folder. Nothing for a drive without a folder and for a UNC path.
  [[nodiscard]] std::optional<std::filesystem::path> ToNative(std::string_view text) const;

  /// The path text of an absolute native path: on the drive whose folder is its longest prefix, below `\` when no
  /// drive holds it.
  [[nodiscard]] std::string ToText(const std::filesystem::path& native) const;

  /// Path text out of what a user typed: path text as it stands, a native path (relative to the working folder) mapped.
  [[nodiscard]] std::string ToTextFromUser(std::string_view typed) const;

  /// Of an absolute native path its path text; any other text as it stands. For settings, where a name without a folder
  /// means something else than a file of the working folder.
  [[nodiscard]] std::string ToTextIfNative(std::string_view typed) const;

 private:
  std::map<char, std::string> drives_;
};

}  // namespace vantorium
