#pragma once

#include <QObject>
#include <cstdint>

class QAction;
class QMenu;
class QToolButton;

namespace vantorium::ui {

struct BrowserMenuEntry;
struct BrowserMenus;

/// The two menus from which the user chooses a browser for a preview: one in the menu bar, and the drop-down list of
/// the tool bar's View button.
class ViewMenus : public QObject {
  Q_OBJECT

 public:
  /// `menu` begins with `defaultEntry` whatever the browsers are. Adds the drop-down list to `button`.
  ViewMenus(QMenu& menu, QAction& defaultEntry, QToolButton& button);

  /// Replaces the entries of both menus.
  void Show(const BrowserMenus& menus);

 signals:
  /// An entry of a browser was chosen; 0 is the system's default.
  void ViewAsked(std::int16_t browserIndex);
  /// The entry for the list of browsers was chosen.
  void ListAsked();

 private:
  void AddEntries(QMenu& menu, const BrowserMenus& menus);
  void AddEntry(QMenu& menu, const BrowserMenuEntry& entry, std::int16_t position);

  QMenu& menu_;
  QAction& defaultEntry_;
  QMenu& dropDown_;
};

}  // namespace vantorium::ui
