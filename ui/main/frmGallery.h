#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class frmGallery;
}

namespace vantorium::ui {

class FieldBinder;

/// The Gallery page of the main window, for the gallery as a whole: title, layout, frames, slideshow.
class frmGallery : public QWidget {
  Q_OBJECT

 public:
  explicit frmGallery(FieldBinder& binder, QWidget* parent = nullptr);
  ~frmGallery() override;

  void FocusTitle();

 signals:
  /// The user wants to edit the paths and file names.
  void FileNamesAsked();
  /// The user wants to edit the names of the frames.
  void FrameNamesAsked();

 private:
  std::unique_ptr<Ui::frmGallery> ui_;
};

}  // namespace vantorium::ui
