#pragma once

#include "env/MessageBoxPort.h"
#include "ui/model/dialogs/BrowserEntry.h"

#include <optional>
#include <string>
#include <vector>

namespace vantorium {

/// The dialog `frmBrowserList` as far as it is not drawn: the entries of lvBrowsers from the top on, one of them
/// perhaps selected, and what its buttons do.
class BrowserList {
 public:
  /// Each browser is put on top of the one before it. As the list is taken back from the top, every opening of the
  /// dialog reverses the order of the browsers.
  BrowserList(const std::vector<Browser>& browsers, BrowserEntryDialog& dialog, MessageBoxPort& boxes);

  /// btnAddBrowser: a new entry on top, unless there are kMostBrowsers. A name that the list has is told and asked for
  /// again.
  void PressAdd();
  /// btnEditBrowser: gives the selected entry another location. Another name makes a new entry on top, and the old one
  /// stays for the user to remove.
  void PressEdit();
  /// btnRemoveBrowser: removes the selected entry, if any, and selects the one that takes its place, else the last.
  void PressRemove();
  /// `index` counts from 0 at the top. Throws RuntimeFailure IndexOutOfBounds when there is no such entry.
  void Select(std::optional<std::size_t> index);

  [[nodiscard]] const std::vector<Browser>& Entries() const { return entries_; }
  [[nodiscard]] std::optional<std::size_t> Selected() const { return selected_; }

 private:
  [[nodiscard]] bool Confirmed(BrowserEntry& entry);
  [[nodiscard]] bool Insert(const Browser& browser);

  BrowserEntryDialog& dialog_;
  MessageBoxPort& boxes_;
  std::vector<Browser> entries_;
  std::optional<std::size_t> selected_;
};

}  // namespace vantorium
