#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vantorium::env {

/// Maps between Windows path text, which the program uses everywhere, and native paths. Whatever a user sees of a path
/// is its surface form.
class PathMap {
 public:
  /// `drives`: the folder of each drive letter (capitals), a native absolute path. If empty, `C:` is `home` and `Z:` is
  /// `/`.
  explicit PathMap(std::map<char, std::string> drives, const std::filesystem::path& home = "/");

  /// Returns a map in which no letter has a folder.
  [[nodiscard]] static PathMap WithoutDrives();

  /// Returns the native path of path text: a letter and a colon mean the drive's folder, one leading separator means
  /// the root, anything else is relative to the working folder. Returns nullopt for a drive without a folder, a UNC
  /// path and a text with a NUL.
  [[nodiscard]] std::optional<std::filesystem::path> ToNative(std::string_view text) const;

  /// Returns the path text of an absolute native path: on the drive whose folder is its longest prefix, or below `\` if
  /// no drive contains it.
  [[nodiscard]] std::string ToText(const std::filesystem::path& native) const;

  /// Converts what a user typed to path text: keeps path text, maps a native path (relative to the working folder).
  [[nodiscard]] std::string ToTextFromUser(std::string_view typed) const;

  /// Returns the path text of an absolute native path, also of one that begins with `~/` unless the user has drives;
  /// any other text unchanged. For settings, where a name without a folder does not mean a file in the working folder.
  [[nodiscard]] std::string ToTextIfNative(std::string_view typed) const;

  /// Returns the surface form of path text, which is what a user sees: the native path of a place on a drive or below
  /// the root. Text that names no such place stays as it is, and so does every text of a user who has drives, who
  /// thinks in letters. ToTextFromUser and ToTextIfNative take the surface form back.
  [[nodiscard]] std::string Surface(std::string_view text) const;

  /// Whether the drives are the user's own and not the usual ones, or are unknown.
  [[nodiscard]] bool ShowsLetters() const { return showsLetters_; }

 private:
  std::map<char, std::string> drives_;
  bool showsLetters_;
};

}  // namespace vantorium::env
