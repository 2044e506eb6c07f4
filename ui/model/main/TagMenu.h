#pragma once

#include <span>
#include <string_view>

namespace vantorium {

/// An entry that puts a template tag into the text; both are empty for a separator.
struct TagMenuEntry {
  std::string_view caption;
  std::string_view tag;
};

/// One submenu of "Insert Vantorium Tag". An entry's object name is that of the menu with the entry's index behind it.
struct TagMenu {
  std::string_view name;
  std::string_view caption;
  std::span<const TagMenuEntry> entries;
};

[[nodiscard]] std::span<const TagMenu> TagMenus();

/// The few tags of the main window's "menuPopupText".
[[nodiscard]] std::span<const TagMenuEntry> PopupTextTags();

}  // namespace vantorium
