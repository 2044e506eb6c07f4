#pragma once

#include <QWidget>
#include <memory>
#include <string>

namespace Ui {
class frmThumbnails;
}

namespace vantorium::env {
class PathMap;
}  // namespace vantorium::env

namespace vantorium::ui {

class ColorDialog;
class FieldBinder;

/// The Thumbnails page of the main window, for the thumbnails and their pages.
class frmThumbnails : public QWidget {
  Q_OBJECT

 public:
  frmThumbnails(FieldBinder& binder, const env::PathMap& paths, ColorDialog& colors, QWidget* parent = nullptr);
  ~frmThumbnails() override;

  /// Shows the number of images and of pages.
  void ShowPageCount(const std::string& text);

 private:
  std::unique_ptr<Ui::frmThumbnails> ui_;
};

}  // namespace vantorium::ui
