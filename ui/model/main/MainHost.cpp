#include "ui/model/main/MainHost.h"

#include "ui/model/main/ImageListTexts.h"

namespace vantorium::ui {

void MainHost::Attach(MainView& view, HelperWindows& windows) {
  view_ = &view;
  windows_ = &windows;
}

void MainHost::RefreshTitleBar() {
  view_->ShowTitle("Vantorium 3.0 - [" + project_.ProjectFileName + "]");
}

void MainHost::RefreshCounts() {
  view_->ShowImageCount(ImageCountText(ImageCount()));
  RefreshPageCount();
}

void MainHost::RefreshPageCount() {
  view_->ShowPageCount(PageCountText(ImageCount(), core::ThumbnailPageCount(project_.settings, ImageCount())));
}

std::optional<generation::RunOrder> MainHost::AskWhatToCreate() {
  auto order = windows_->AskWhatToCreate();
  if (order) order->Port = ftpPort_;
  return order;
}

/// Images may have got new names.
bool MainHost::MayStart(generation::RunForecast& forecast) {
  const bool wanted = windows_->ShowRunWarnings(forecast);
  view_->ShowImages();
  return wanted;
}

std::unique_ptr<publish::ProgressWindow> MainHost::CreateProgressWindow() {
  return windows_->CreateProgressWindow();
}

}  // namespace vantorium::ui
