#include "ui/model/main/BrowserMenus.h"

namespace vantorium::ui {
namespace {

constexpr const char* kDefaultKey = "default";
constexpr const char* kAvailableKey = "available";

BrowserMenuEntry Separator() {
  return {"-", ""};
}

}  // namespace

BrowserMenus RebuildBrowserMenus(const std::vector<env::Browser>& browsers) {
  BrowserMenus menus;
  menus.DropDown = {{"...in Default Browser", kDefaultKey}, Separator()};
  for (const env::Browser& browser : browsers) {
    const std::string caption = "...in " + browser.Name;
    menus.ViewBrowser.push_back(caption);
    menus.DropDown.push_back({caption, "browser" + std::to_string(menus.ViewBrowser.size())});
  }
  if (!browsers.empty()) menus.DropDown.push_back(Separator());
  menus.DropDown.push_back({"Available Browsers...", kAvailableKey});
  return menus;
}

BrowserClick DropDownClick(int button, std::string_view key, std::int16_t position) {
  using Kind = BrowserClick::Kind;
  if (button != kViewButton) return {Kind::Nothing, 0};
  if (key == kDefaultKey) return {Kind::View, 0};
  if (key == kAvailableKey) return {Kind::List, 0};
  return {Kind::View, static_cast<std::int16_t>(position - 2)};
}

}  // namespace vantorium::ui
