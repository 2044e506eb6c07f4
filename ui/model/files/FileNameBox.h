#pragma once

#include "env/MessageBoxPort.h"
#include "ui/model/files/FileBrowser.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium {

// The rules of a file dialog's name box and of the buttons beside it.

/// How a file dialog behaves: the numbers of the system's own file dialog.
namespace FileDialogFlag {
inline constexpr std::uint32_t kOverwritePrompt = 0x2;
inline constexpr std::uint32_t kHideReadOnly = 0x4;
inline constexpr std::uint32_t kAllowMultiSelect = 0x200;
inline constexpr std::uint32_t kFileMustExist = 0x1000;
inline constexpr std::uint32_t kExplorer = 0x80000;
inline constexpr std::uint32_t kLongNames = 0x200000;
}  // namespace FileDialogFlag

[[nodiscard]] std::uint32_t FileDialogFlags(const FileDialogRequest& request);

/// The text of the button that ends the dialog with a file.
[[nodiscard]] std::string AcceptButtonText(const FileDialogRequest& request);

/// The names in the box's text: without a quote at either end it is cut at `" "`, at `""` and at `"`, whatever is
/// between. None in an empty text.
[[nodiscard]] std::vector<std::string> CutFileNames(std::string_view text);

/// As CutFileNames, but a single name without an extension gives way to the file part of `lastBrowsed`, the file that
/// was last selected ("" for none).
[[nodiscard]] std::vector<std::string> ChosenFileNames(std::string_view text, std::string_view lastBrowsed);

/// The box's text for these names: one as it stands, several in quotes with a blank between.
[[nodiscard]] std::string JoinFileNames(const std::vector<std::string>& names);

/// The length that the box's text must stay below. Lengths are in characters.
class FileNameLimit {
 public:
  static constexpr std::size_t kTooLong = 1023;

  explicit FileNameLimit(MessageBoxPort& boxes) : boxes_(boxes) {}

  /// Behind a change of the selection, with the text's length, the names just selected included. A text that is too
  /// long is told each time.
  void SelectionChanged(std::size_t length);
  /// Behind an edit of the text by the user, who is told when it becomes too long.
  void Typed(std::size_t length);

  /// Whether OK can be pressed.
  [[nodiscard]] bool AllowsOk() const { return !exceeded_; }

 private:
  void Tell();

  MessageBoxPort& boxes_;
  bool exceeded_ = false;
};

}  // namespace vantorium
