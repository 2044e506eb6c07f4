#pragma once

#include <span>
#include <string_view>

namespace vantorium::ui {

/// State of a text box and the clipboard when the menu of the box is about to open.
struct TextBoxState {
  bool canUndo = false;
  bool isLocked = false;  ///< the text is read-only
  bool hasSelection = false;
  bool clipboardHasText = false;
};

enum class EditCommand { Undo, Separator, Cut, Copy, Paste, Clear, SelectAll };

struct EditMenuEntry {
  EditCommand command;
  std::string_view caption;  ///< empty for a separator
};

/// Returns the edit commands of a text box's menu, in the order of their index.
[[nodiscard]] std::span<const EditMenuEntry> EditMenuEntries();

[[nodiscard]] bool IsEnabled(EditCommand command, const TextBoxState& box);

}  // namespace vantorium::ui
