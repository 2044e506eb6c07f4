#pragma once

#include <span>
#include <string_view>

namespace vantorium {

/// What a text box and the clipboard are like when the menu of the box is about to open.
struct TextBoxState {
  bool canUndo = false;
  bool isLocked = false;  ///< its text can be read only
  bool hasSelection = false;
  bool clipboardHasText = false;
};

enum class EditCommand { Undo, Separator, Cut, Copy, Paste, Clear, SelectAll };

struct EditMenuEntry {
  EditCommand command;
  std::string_view caption;  ///< empty for a separator
};

/// The edit commands of a text box's menu, by their index.
[[nodiscard]] std::span<const EditMenuEntry> EditMenuEntries();

[[nodiscard]] bool IsEnabled(EditCommand command, const TextBoxState& box);

}  // namespace vantorium
