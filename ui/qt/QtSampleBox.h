#pragma once

#include "ui/model/dialogs/SampleDialog.h"
#include "ui/widgets/UnscaledPicture.h"

#include <QDialog>

namespace vantorium::ui {

/// The SampleBox of a dialog that shows its sample in a UnscaledPicture.
class QtSampleBox : public SampleBox {
 public:
  QtSampleBox(QDialog& dialog, UnscaledPicture& box) : dialog_(dialog), box_(box) {}

  [[nodiscard]] image::PictureSize SizeInPixels() const override { return box_.SizeInPixels(); }
  [[nodiscard]] double PixelRatio() const override { return box_.devicePixelRatioF(); }
  void Clear() override { box_.Clear(); }
  void PaintPicture(const image::cDIBSection& picture) override { box_.Show(picture); }
  void HideDialog() override { dialog_.hide(); }

 private:
  QDialog& dialog_;
  UnscaledPicture& box_;
};

}  // namespace vantorium::ui
