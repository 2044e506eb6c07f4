#pragma once

#include "core/generation/TagTable.h"

#include <span>
#include <string_view>

namespace vantorium::ui {

/// An entry that inserts a template tag; caption and tag are empty for a separator.
using TagMenuEntry = generation::OfferedTag;

/// One submenu of "Insert Vantorium Tag", which inserts the tags of one group. An entry's object name is the menu's
/// name followed by the entry's index.
struct TagMenu {
  std::string_view name;
  std::string_view caption;
  std::span<const TagMenuEntry> entries;
};

[[nodiscard]] std::span<const TagMenu> TagMenus();

/// Returns the tags of the main window's "menuPopupText".
[[nodiscard]] std::span<const TagMenuEntry> PopupTextTags();

}  // namespace vantorium::ui
