#include "ui/model/main/SysTrayMenu.h"

#include <algorithm>

namespace vantorium::ui {
namespace {

constexpr std::ptrdiff_t kLongestToolTip = 63;

/// Returns the first `count` characters of UTF-8 text and splits none.
std::string FirstCharacters(const std::string& text, std::ptrdiff_t count) {
  const auto end = std::find_if(text.begin(), text.end(), [&](char byte) {
    const bool begins = (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    return begins && count-- == 0;
  });
  return {text.begin(), end};
}

}  // namespace

std::int32_t SysTrayMenu::AddMenuItem(const std::string& caption, const std::string& key, bool isDefault) {
  items_.push_back({caption, key});
  const auto index = static_cast<std::int32_t>(items_.size()) - 1;
  if (isDefault) defaultMenuIndex_ = index;
  return index;
}

void SysTrayMenu::EnableMenuItem(std::int32_t index, bool enabled) {
  if (IsValid(index)) items_[static_cast<std::size_t>(index)].Enabled = enabled;
}

void SysTrayMenu::RemoveMenuItem(std::int32_t index) {
  if (!IsValid(index)) return;
  if (index == 0) {
    items_[0].Caption.clear();
  } else {
    for (auto item = items_.begin() + index; item + 1 != items_.end(); ++item) {
      item->Caption = (item + 1)->Caption;
      item->Key = (item + 1)->Key;
    }
    items_.pop_back();
  }
  if (index == defaultMenuIndex_ || !IsValid(defaultMenuIndex_)) defaultMenuIndex_ = -1;
}

void SysTrayMenu::SetToolTip(const std::string& text) {
  toolTip_ = FirstCharacters(text.substr(0, text.find('\0')), kLongestToolTip);
}

bool SysTrayMenu::IsValid(std::int32_t index) const {
  return index >= 0 && static_cast<std::size_t>(index) < items_.size();
}

SysTrayMenu VantoriumSysTrayMenu() {
  SysTrayMenu menu;
  menu.AddMenuItem("&Vantorium", "vantorium", true);
  menu.AddMenuItem("-", "");
  menu.AddMenuItem("&Help", "help");
  menu.AddMenuItem("&About...", "about");
  menu.AddMenuItem("-", "");
  menu.AddMenuItem("&Close", "close");
  menu.SetToolTip("Vantorium 3.0");
  return menu;
}

}  // namespace vantorium::ui
