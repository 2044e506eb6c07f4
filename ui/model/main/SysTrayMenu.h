#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vantorium {

/// An entry of the menu behind the tray icon. With the caption "-" it is a line between others.
struct SysTrayMenuItem {
  std::string Caption;
  std::string Key;
  bool Enabled = true;

  [[nodiscard]] bool IsSeparator() const { return Caption == "-"; }
  bool operator==(const SysTrayMenuItem&) const = default;
};

/// The tray icon as far as it is not drawn: its tip, and its menu mnuPopup with the entries mnuSysTray, counted from 0.
class SysTrayMenu {
 public:
  /// An entry behind the others; its index. The first one takes the element that is there from the beginning.
  std::int32_t AddMenuItem(const std::string& caption, const std::string& key, bool isDefault = false);
  /// An invalid index changes nothing.
  void EnableMenuItem(std::int32_t index, bool enabled);
  /// The entries behind the removed one move up with caption and key; enabled or not stays with the place. Entry 0 is
  /// never removed: it loses its caption, and an entry without a caption is not shown. When it was the default there is
  /// none afterwards; any other default keeps its number as long as there is an entry of that number. An invalid index
  /// changes nothing.
  void RemoveMenuItem(std::int32_t index);

  /// The entry in bold, which a double click on the icon chooses; -1 for none.
  [[nodiscard]] std::int32_t DefaultMenuIndex() const { return defaultMenuIndex_; }
  /// An invalid index means none.
  void SetDefaultMenuIndex(std::int32_t index) { defaultMenuIndex_ = IsValid(index) ? index : -1; }

  /// The tip of the icon: what stands before the first NUL, of that at most 63 characters.
  [[nodiscard]] const std::string& ToolTip() const { return toolTip_; }
  void SetToolTip(const std::string& text);

  /// The elements of mnuSysTray; none until the first entry was added.
  [[nodiscard]] const std::vector<SysTrayMenuItem>& Items() const { return items_; }
  [[nodiscard]] bool IsValid(std::int32_t index) const;

 private:
  std::vector<SysTrayMenuItem> items_;
  std::int32_t defaultMenuIndex_ = -1;
  std::string toolTip_;
};

/// The menu of the program: its window, help, about and close.
[[nodiscard]] SysTrayMenu VantoriumSysTrayMenu();

}  // namespace vantorium
