#pragma once

#include "env/MessageBoxPort.h"
#include "ui/model/dialogs/BrowserEntry.h"

#include <optional>
#include <string>
#include <vector>

namespace vantorium::ui {

/// The logic of the dialog `frmBrowserList`, without its widgets: the entries of lvBrowsers from the top down, which of
/// them is selected, if any, and what the buttons do.
class BrowserList {
 public:
  /// Each browser is inserted above the previous one. Entries() is read from the top, so every opening of the dialog
  /// reverses the order of the browsers.
  BrowserList(const std::vector<env::Browser>& browsers, BrowserEntryDialog& dialog, env::MessageBoxPort& boxes);

  /// btnAddBrowser: asks for a new entry and inserts it at the top, unless there are kMostBrowsers. If the list already
  /// has the name, shows a message box and asks again.
  void PressAdd();
  /// btnEditBrowser: changes the location of the selected entry. If the user changes the name, inserts a new entry at
  /// the top and leaves the old one for the user to remove.
  void PressEdit();
  /// btnRemoveBrowser: removes the selected entry, if any, and selects the one that takes its place, else the last.
  void PressRemove();
  /// `index` counts from 0 at the top. Throws RuntimeFailure IndexOutOfBounds if there is no such entry.
  void Select(std::optional<std::size_t> index);

  [[nodiscard]] const std::vector<env::Browser>& Entries() const { return entries_; }
  [[nodiscard]] std::optional<std::size_t> Selected() const { return selected_; }

 private:
  [[nodiscard]] bool Confirmed(BrowserEntry& entry);
  [[nodiscard]] bool Insert(const env::Browser& browser);

  BrowserEntryDialog& dialog_;
  env::MessageBoxPort& boxes_;
  std::vector<env::Browser> entries_;
  std::optional<std::size_t> selected_;
};

}  // namespace vantorium::ui
