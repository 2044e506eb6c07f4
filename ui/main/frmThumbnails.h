#pragma once

#include <QWidget>
#include <memory>
#include <string>

namespace Ui {
class frmThumbnails;
}

namespace vantorium {

class ColorDialog;
class FieldBinder;
class PathMap;

/// The Thumbnails page of the main window, for the thumbnails and their pages.
class frmThumbnails : public QWidget {
  Q_OBJECT

 public:
  frmThumbnails(FieldBinder& binder, const PathMap& paths, ColorDialog& colors, QWidget* parent = nullptr);
  ~frmThumbnails() override;

  /// Shows the number of images and of pages.
  void ShowPageCount(const std::string& text);

 private:
  std::unique_ptr<Ui::frmThumbnails> ui_;
};

}  // namespace vantorium
