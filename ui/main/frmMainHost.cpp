// The interfaces of the main window that the layers below it call.
#include "ui/dialogs/frmCreateGallery.h"
#include "ui/dialogs/frmImageDescriptions.h"
#include "ui/dialogs/frmProgress.h"
#include "ui/main/frmImages.h"
#include "ui/main/frmInfo.h"
#include "ui/main/frmMain.h"
#include "ui/main/frmSysTray.h"
#include "ui/model/main/ImageListTexts.h"
#include "ui/qt/QtColor.h"
#include "ui/qt/QtText.h"
#include "ui_frmMain.h"

#include <QLabel>
#include <QWindow>
#include <utility>

namespace vantorium {

void frmMain::SetStatusText(const std::string& text) {
  statusText_->setText(ToQt(text));
}

void frmMain::ShowInfoWindow(const std::string& text) {
  info_->SetText(text);
  info_->show();
}

void frmMain::HideInfoWindow() {
  info_->hide();
}

// A disabled window loses its focus, and so does the descriptions window with it. Restores both, so that the user can
// type on after a save.
void frmMain::EnableMainWindow(bool enabled) {
  if (!enabled && isEnabled()) focus_ = {focusWidget(), descriptions_->focusWidget()};
  setEnabled(enabled);
  info_->setEnabled(true);  // keeps its text readable while this window waits
  KeepPointerWhileDisabled();
  if (!enabled) return;
  for (const QPointer<QWidget>& control : std::exchange(focus_, {})) {
    // The window itself is not visible yet while it starts.
    if (control != nullptr && control->isVisibleTo(control->window())) control->setFocus();
  }
}

void frmMain::RefreshTitleBar() {
  setWindowTitle(ToQt("Vantorium 3.0 - [" + project_.ProjectFileName + "]"));
}

void frmMain::RefreshPreview() {
  imagesPage_->RefreshPreview();
}

void frmMain::RefreshCounts() {
  imageCount_->setText(ToQt(ImageCountText(static_cast<std::int32_t>(project_.images.Count()))));
  RefreshPageCount();
}

void frmMain::RefreshPageCount() {
  const auto images = static_cast<std::int32_t>(project_.images.Count());
  findChild<QLabel*>("lblThumbnailsPageCount")
      ->setText(ToQt(PageCountText(images, ThumbnailPageCount(project_.settings, images))));
}

void frmMain::HideDescriptionsWindow() {
  descriptions_->hide();
}

void frmMain::SelectFirstTab() {
  ui_->tsMain->setCurrentIndex(0);
}

void frmMain::FocusTitleField() {
  findChild<QWidget*>("textGalleryTitle")->setFocus();
}

void frmMain::RebuildCustomColors() {
  CustomColors colors = {};
  for (std::size_t i = 0; i < colors.size(); ++i) {
    colors[i] = FromQt(palette().color(static_cast<QPalette::ColorRole>(i)));
  }
  colors_.RebuildCustomColors(colors);
}

std::optional<RunOrder> frmMain::AskWhatToCreate() {
  auto order = create_->Ask();
  if (order) order->Port = ports_.ftpPort;
  return order;
}

std::unique_ptr<ProgressWindow> frmMain::CreateProgressWindow() {
  auto progress = std::make_unique<frmProgress>(log_, cancel_, ports_.shell, appPath_, this);
  // Some window managers focus no window of the program when a window above a disabled one closes.
  connect(progress.get(), &QObject::destroyed, this, &QWidget::activateWindow);
  return progress;
}

void frmMain::ShowBusyPointer(bool busy) {
  busy ? setCursor(Qt::WaitCursor) : unsetCursor();
  KeepPointerWhileDisabled();
}

/// Qt drops the pointer of a window while it is disabled. No other window of the program uses this window's pointer.
void frmMain::KeepPointerWhileDisabled() {
  if (!isEnabled() && windowHandle() != nullptr) windowHandle()->setCursor(cursor());
}

void frmMain::EnableTrayIcon(bool enabled) {
  tray_->SetEnabled(enabled);
}

void frmMain::ScrollIntoView(std::size_t position) {
  imagesPage_->ScrollIntoView(position);
}

}  // namespace vantorium
