#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vantorium::ui {

/// An entry of the tray icon's menu. With the caption "-" it is a separator.
struct SysTrayMenuItem {
  std::string Caption;
  std::string Key;
  bool Enabled = true;

  [[nodiscard]] bool IsSeparator() const { return Caption == "-"; }
  bool operator==(const SysTrayMenuItem&) const = default;
};

/// The tray icon without its drawing: its tooltip, and its menu mnuPopup with the entries mnuSysTray, numbered from 0.
class SysTrayMenu {
 public:
  /// Appends an entry and returns its index. The first entry takes the element that exists from the beginning.
  std::int32_t AddMenuItem(const std::string& caption, const std::string& key, bool isDefault = false);
  /// Does nothing if the index is invalid.
  void EnableMenuItem(std::int32_t index, bool enabled);
  /// Moves the captions and keys of the entries after the removed one up; the enabled state stays with the position.
  /// Entry 0 is never removed: it loses its caption, and an entry without a caption is not shown. If the removed entry
  /// was the default, there is none afterwards; any other default keeps its index as long as an entry has that index.
  /// Does nothing if the index is invalid.
  void RemoveMenuItem(std::int32_t index);

  /// Index of the bold entry, which a double click on the icon chooses; -1 for none.
  [[nodiscard]] std::int32_t DefaultMenuIndex() const { return defaultMenuIndex_; }
  /// An invalid index means none.
  void SetDefaultMenuIndex(std::int32_t index) { defaultMenuIndex_ = IsValid(index) ? index : -1; }

  /// The icon's tooltip: the text before the first NUL, cut to 63 characters.
  [[nodiscard]] const std::string& ToolTip() const { return toolTip_; }
  void SetToolTip(const std::string& text);

  /// The elements of mnuSysTray; none until the first entry is added.
  [[nodiscard]] const std::vector<SysTrayMenuItem>& Items() const { return items_; }
  [[nodiscard]] bool IsValid(std::int32_t index) const;

 private:
  std::vector<SysTrayMenuItem> items_;
  std::int32_t defaultMenuIndex_ = -1;
  std::string toolTip_;
};

/// Returns the program's menu: its window, help, about and close.
[[nodiscard]] SysTrayMenu VantoriumSysTrayMenu();

}  // namespace vantorium::ui
