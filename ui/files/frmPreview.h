#pragma once

#include "env/PathMap.h"
#include "image/Corrections.h"

#include <QDialog>
#include <memory>
#include <string>

namespace Ui {
class frmPreview;
}

namespace vantorium::ui {

/// A full-screen view of a picture: pixel for pixel, centered, cropped on all sides if the screen has no room for it.
/// Shown modally; a key or a click closes it.
class frmPreview : public QDialog {
  Q_OBJECT

 public:
  explicit frmPreview(const env::PathMap& paths, QWidget* parent = nullptr);
  ~frmPreview() override;

  /// `description` goes into the title. A `file` (path text) that can't be shown leaves the screen empty.
  /// Corrections are made in photographs only.
  void SetPicture(const std::string& description, const std::string& file, image::Corrections corrections = {});

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  const env::PathMap& paths_;
  std::unique_ptr<Ui::frmPreview> ui_;
};

}  // namespace vantorium::ui
