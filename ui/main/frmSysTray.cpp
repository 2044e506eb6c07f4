#include "ui/main/frmSysTray.h"

#include "ui/qt/QtText.h"

#include <QApplication>
#include <QCursor>
#include <QTimer>

namespace vantorium::ui {
namespace {

constexpr std::chrono::seconds kTrayWatch{2};

/// Returns whether `click` was started and is still within the interval of a double click.
bool IsRecent(const QElapsedTimer& click) {
  return click.isValid() && click.elapsed() < QApplication::doubleClickInterval();
}

}  // namespace

frmSysTray::frmSysTray(SysTrayMenu menu, const QIcon& icon, TrayCheck isTrayAvailable, QObject* parent)
    : QObject(parent), menu_(std::move(menu)), trayIcon_(icon), isTrayAvailable_(std::move(isTrayAvailable)) {
  setObjectName("frmSysTray");
  popup_.setObjectName("mnuPopup");
  trayIcon_.setObjectName("trayIcon");
  trayIcon_.setParent(this);
  trayIcon_.setContextMenu(&popup_);  // some desktops draw the menu themselves and report no mouse button
  Show();
  connect(&trayIcon_, &QSystemTrayIcon::activated, this, &frmSysTray::Activate);
  if (!ShowIcon()) WatchForTray();
}

bool frmSysTray::ShowIcon() {
  if (!isTrayAvailable_()) return false;
  trayIcon_.show();
  return true;
}

void frmSysTray::WatchForTray() {
  auto* watch = new QTimer(this);
  watch->setObjectName("trayWatch");
  connect(watch, &QTimer::timeout, this, [this, watch] {
    if (ShowIcon()) watch->stop();
  });
  watch->start(kTrayWatch);
}

std::int32_t frmSysTray::AddMenuItem(const std::string& caption, const std::string& key, bool isDefault) {
  const std::int32_t index = menu_.AddMenuItem(caption, key, isDefault);
  Show();
  return index;
}

void frmSysTray::EnableMenuItem(std::int32_t index, bool enabled) {
  menu_.EnableMenuItem(index, enabled);
  Show();
}

void frmSysTray::RemoveMenuItem(std::int32_t index) {
  menu_.RemoveMenuItem(index);
  Show();
}

void frmSysTray::SetDefaultMenuIndex(std::int32_t index) {
  menu_.SetDefaultMenuIndex(index);
  Show();
}

void frmSysTray::SetToolTip(const std::string& text) {
  menu_.SetToolTip(text);
  Show();
}

void frmSysTray::SetEnabled(bool enabled) {
  enabled_ = enabled;
  Show();
}

void frmSysTray::ShowMenu() {
  if (!popup_.isVisible()) popup_.popup(QCursor::pos());
}

void frmSysTray::Show() {
  trayIcon_.setToolTip(ToQt(menu_.ToolTip()));
  popup_.clear();
  for (std::int32_t index = 0; menu_.IsValid(index); ++index) AddAction(index);
}

void frmSysTray::AddAction(std::int32_t index) {
  const SysTrayMenuItem& item = menu_.Items()[static_cast<std::size_t>(index)];
  QAction* action = item.IsSeparator() ? popup_.addSeparator() : popup_.addAction(ToQt(item.Caption));
  action->setObjectName("mnuSysTray" + QString::number(index));
  action->setVisible(!item.Caption.empty());
  action->setEnabled(enabled_ && item.Enabled);
  connect(action, &QAction::triggered, this, [this, index] { Choose(index); });
  if (index == menu_.DefaultMenuIndex()) popup_.setDefaultAction(action);
}

void frmSysTray::Activate(QSystemTrayIcon::ActivationReason reason) {
  if (!enabled_) return;
  switch (reason) {
    case QSystemTrayIcon::Trigger:
      return Trigger();
    case QSystemTrayIcon::Context:
      return emit SysTrayMouseDown(Qt::RightButton);
    case QSystemTrayIcon::DoubleClick:
      return DoubleClick();
    default:
      return;
  }
}

// A tray that reports over D-Bus sends only the two clicks of a double click; others send the first click and the
// double click.
void frmSysTray::Trigger() {
  if (IsRecent(trigger_)) return DoubleClick();
  trigger_.start();
  emit SysTrayMouseDown(Qt::LeftButton);
}

void frmSysTray::DoubleClick() {
  trigger_.invalidate();
  if (IsRecent(doubleClick_)) return;
  doubleClick_.start();
  emit SysTrayDoubleClick();
  Choose(menu_.DefaultMenuIndex());
}

void frmSysTray::Choose(std::int32_t index) {
  if (!menu_.IsValid(index)) return;
  const SysTrayMenuItem& item = menu_.Items()[static_cast<std::size_t>(index)];
  if (!item.Enabled) return;
  emit MenuClick(index, ToQt(item.Key));
}

}  // namespace vantorium::ui
