#include "ui/frmSysTray.h"

#include "ui/ports/QtText.h"

#include <QCursor>

namespace vantorium {

frmSysTray::frmSysTray(SysTrayMenu menu, const QIcon& icon, QObject* parent)
    : QObject(parent), menu_(std::move(menu)), trayIcon_(icon) {
  setObjectName("frmSysTray");
  popup_.setObjectName("mnuPopup");
  trayIcon_.setObjectName("trayIcon");
  trayIcon_.setParent(this);
  trayIcon_.setContextMenu(&popup_);  // some desktops draw the menu themselves and tell no mouse button
  Show();
  connect(&trayIcon_, &QSystemTrayIcon::activated, this, &frmSysTray::Activate);
  if (QSystemTrayIcon::isSystemTrayAvailable()) trayIcon_.show();
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
      return emit SysTrayMouseDown(Qt::LeftButton);
    case QSystemTrayIcon::Context:
      return emit SysTrayMouseDown(Qt::RightButton);
    case QSystemTrayIcon::DoubleClick:
      emit SysTrayDoubleClick();
      return Choose(menu_.DefaultMenuIndex());
    default:
      return;
  }
}

void frmSysTray::Choose(std::int32_t index) {
  if (!menu_.IsValid(index)) return;
  const SysTrayMenuItem& item = menu_.Items()[static_cast<std::size_t>(index)];
  if (!item.Enabled) return;
  emit MenuClick(index, ToQt(item.Key));
}

}  // namespace vantorium
