#pragma once

#include "env/MessageBoxPort.h"
#include "ui/model/files/FileBrowser.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::ui {

// The rules of a file dialog's name box and of its buttons.

/// Flags for the behavior of a file dialog, with the numbers of the system's own file dialog.
namespace FileDialogFlag {
inline constexpr std::uint32_t kOverwritePrompt = 0x2;
inline constexpr std::uint32_t kHideReadOnly = 0x4;
inline constexpr std::uint32_t kAllowMultiSelect = 0x200;
inline constexpr std::uint32_t kFileMustExist = 0x1000;
inline constexpr std::uint32_t kExplorer = 0x80000;
inline constexpr std::uint32_t kLongNames = 0x200000;
}  // namespace FileDialogFlag

[[nodiscard]] std::uint32_t FileDialogFlags(const FileDialogRequest& request);

/// Returns the text of the button that accepts a file.
[[nodiscard]] std::string AcceptButtonText(const FileDialogRequest& request);

/// Returns the names in the text of the box. Drops a quote at either end, then splits at `" "`, `""` and `"`, whatever
/// is between. Empty text has no names.
[[nodiscard]] std::vector<std::string> CutFileNames(std::string_view text);

/// Like CutFileNames, but replaces a single name without an extension by the file part of `lastBrowsed`, the file last
/// selected ("" for none).
[[nodiscard]] std::vector<std::string> ChosenFileNames(std::string_view text, std::string_view lastBrowsed);

/// Returns the box's text for these names: a single name unchanged, several in quotes with a space between.
[[nodiscard]] std::string JoinFileNames(const std::vector<std::string>& names);

/// Keeps the length of the box's text below kTooLong. Lengths are in characters.
class FileNameLimit {
 public:
  static constexpr std::size_t kTooLong = 1023;

  explicit FileNameLimit(env::MessageBoxPort& boxes) : boxes_(boxes) {}

  /// Call after a change of the selection with the length of the text, including the names just selected. Shows a
  /// message box each time the text is too long.
  void SelectionChanged(std::size_t length);
  /// Call after an edit of the text by the user. Shows a message box when the text becomes too long.
  void Typed(std::size_t length);

  /// Whether OK can be pressed.
  [[nodiscard]] bool AllowsOk() const { return !exceeded_; }

 private:
  void Tell();

  env::MessageBoxPort& boxes_;
  bool exceeded_ = false;
};

}  // namespace vantorium::ui
