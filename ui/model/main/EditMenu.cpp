#include "ui/model/main/EditMenu.h"

namespace vantorium::ui {
namespace {

constexpr EditMenuEntry kEntries[] = {
    {EditCommand::Undo, "&Undo"},   {EditCommand::Separator, ""},
    {EditCommand::Cut, "Cu&t"},     {EditCommand::Copy, "&Copy"},
    {EditCommand::Paste, "&Paste"}, {EditCommand::Clear, "C&lear"},
    {EditCommand::Separator, ""},   {EditCommand::SelectAll, "Select &All"},
};

}  // namespace

std::span<const EditMenuEntry> EditMenuEntries() {
  return kEntries;
}

bool IsEnabled(EditCommand command, const TextBoxState& box) {
  switch (command) {
    case EditCommand::Undo:
      return box.canUndo;
    case EditCommand::Cut:
    case EditCommand::Clear:
      return !box.isLocked && box.hasSelection;
    case EditCommand::Copy:
      return box.hasSelection;
    case EditCommand::Paste:
      return box.clipboardHasText;
    case EditCommand::Separator:
    case EditCommand::SelectAll:
      break;
  }
  return true;
}

}  // namespace vantorium::ui
