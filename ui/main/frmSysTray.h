#pragma once

#include "ui/model/main/SysTrayMenu.h"

#include <QElapsedTimer>
#include <QIcon>
#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>
#include <functional>

namespace vantorium::ui {

/// The icon in the desktop's tray, and its menu. If there is no tray, the icon appears as soon as there is one, and
/// everything else works the same.
class frmSysTray : public QObject {
  Q_OBJECT

 public:
  using TrayCheck = std::function<bool()>;

  explicit frmSysTray(SysTrayMenu menu, const QIcon& icon,
                      TrayCheck isTrayAvailable = QSystemTrayIcon::isSystemTrayAvailable, QObject* parent = nullptr);

  /// While disabled, such as during a run, its menu chooses nothing and no signal is sent.
  void SetEnabled(bool enabled);
  /// Shows the menu at the mouse pointer, unless the desktop already shows it.
  void ShowMenu();

  // Part of the module's interface; the program itself does not call them. The first five do as in SysTrayMenu.
  std::int32_t AddMenuItem(const std::string& caption, const std::string& key, bool isDefault = false);
  void EnableMenuItem(std::int32_t index, bool enabled);
  void RemoveMenuItem(std::int32_t index);
  void SetDefaultMenuIndex(std::int32_t index);
  void SetToolTip(const std::string& text);
  void SetIcon(const QIcon& icon) { trayIcon_.setIcon(icon); }

 signals:
  /// An entry was chosen with the mouse or the keyboard, or the default one by a double click on the icon.
  void MenuClick(int index, const QString& key);
  void SysTrayMouseDown(Qt::MouseButton button);
  void SysTrayDoubleClick();

 private:
  void Show();
  void AddAction(std::int32_t index);
  [[nodiscard]] bool ShowIcon();
  void WatchForTray();
  void Activate(QSystemTrayIcon::ActivationReason reason);
  void Trigger();
  void DoubleClick();
  void Choose(std::int32_t index);

  SysTrayMenu menu_;
  QMenu popup_;
  QSystemTrayIcon trayIcon_;
  TrayCheck isTrayAvailable_;
  QElapsedTimer trigger_;      ///< time since a click that may be the first of two
  QElapsedTimer doubleClick_;  ///< time since the last double click that was handled
  bool enabled_ = true;
};

}  // namespace vantorium::ui
