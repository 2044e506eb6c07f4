#pragma once

#include "env/Preferences.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::ui {

/// An entry of the drop-down list of the toolbar's View button. A separator has the text "-" and no key.
struct BrowserMenuEntry {
  std::string Text;
  std::string Key;

  [[nodiscard]] bool IsSeparator() const { return Key.empty(); }
  bool operator==(const BrowserMenuEntry&) const = default;
};

/// The menus from which the user chooses a browser of the list.
struct BrowserMenus {
  std::vector<BrowserMenuEntry> DropDown;  ///< positions count from 1: position n is DropDown[n - 1]
  std::vector<std::string> ViewBrowser;    ///< captions of menuActionsViewBrowser, from its element 1 on
};

[[nodiscard]] BrowserMenus RebuildBrowserMenus(const std::vector<env::Browser>& browsers);

/// The index of the toolbar button that has the drop-down list.
inline constexpr int kViewButton = 6;

/// What a click on an entry of a drop-down list asks for.
struct BrowserClick {
  enum class Kind {
    Nothing,  ///< the list is not that of the View button
    View,     ///< a preview in browser `BrowserIndex`, 0 is the default browser
    List      ///< the dialog that edits the list
  };

  Kind kind = Kind::Nothing;
  std::int16_t BrowserIndex = 0;

  bool operator==(const BrowserClick&) const = default;
};

/// `position` counts from 1.
[[nodiscard]] BrowserClick DropDownClick(int button, std::string_view key, std::int16_t position);

}  // namespace vantorium::ui
