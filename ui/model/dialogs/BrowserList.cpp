#include "ui/model/dialogs/BrowserList.h"

#include "env/RuntimeFailure.h"

#include <algorithm>

namespace vantorium::ui {

BrowserList::BrowserList(const std::vector<env::Browser>& browsers, BrowserEntryDialog& dialog,
                         env::MessageBoxPort& boxes)
    : dialog_(dialog), boxes_(boxes), entries_(browsers.rbegin(), browsers.rend()) {}

void BrowserList::PressAdd() {
  if (entries_.size() >= env::kMostBrowsers) {
    return boxes_.Critical("Reached Browser Limit", "You cannot list more than 8 Browsers.");
  }
  BrowserEntry entry("Add Browser", {});
  while (Confirmed(entry) && !Insert(entry.Texts())) {
  }
}

void BrowserList::PressEdit() {
  if (!selected_) {
    return boxes_.Critical("No Browser selected", "Please select one of the Browsers in the List first.");
  }
  env::Browser& old = entries_[*selected_];
  BrowserEntry entry("Edit Browser", old);
  while (Confirmed(entry)) {
    if (entry.Texts().Name == old.Name) {
      old.Location = entry.Texts().Location;
      return;
    }
    if (Insert(entry.Texts())) return;
  }
}

void BrowserList::PressRemove() {
  if (!selected_) return;
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(*selected_));
  if (entries_.empty()) {
    selected_.reset();
  } else {
    selected_ = std::min(*selected_, entries_.size() - 1);
  }
}

void BrowserList::Select(std::optional<std::size_t> index) {
  if (index && *index >= entries_.size()) throw env::RuntimeFailure(env::FailureKind::IndexOutOfBounds);
  selected_ = index;
}

bool BrowserList::Confirmed(BrowserEntry& entry) {
  entry.ComeUp();
  dialog_.Show(entry);
  return !entry.Cancelled();
}

/// The selection stays with its entry.
bool BrowserList::Insert(const env::Browser& browser) {
  const auto hasName = [&](const env::Browser& other) { return other.Name == browser.Name; };
  if (std::ranges::any_of(entries_, hasName)) {
    boxes_.Critical("Duplicate Browser Name",
                    "A Browser with this Name already exists in the Browser List. Please rename it.");
    return false;
  }
  entries_.insert(entries_.begin(), browser);
  if (selected_) ++*selected_;
  return true;
}

}  // namespace vantorium::ui
