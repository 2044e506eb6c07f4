#include "ui/main/frmGallery.h"

#include "ui/widgets/FieldBinder.h"
#include "ui_frmGallery.h"

namespace vantorium::ui {

frmGallery::frmGallery(FieldBinder& binder, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::frmGallery>()) {
  ui_->setupUi(this);
  binder.Bind(*ui_->textGalleryTitle, &core::GalleryProject::textGalleryTitle);
  binder.Bind(*ui_->comboGalleryLayoutType, &core::GalleryProject::comboGalleryLayoutType);
  binder.Bind(*ui_->comboGalleryFrameSizingPriority, &core::GalleryProject::comboGalleryFrameSizingPriority);
  binder.Bind(*ui_->checkGalleryFrameSizeInPercent, &core::GalleryProject::checkGalleryFrameSizeInPercent);
  binder.Bind(*ui_->textGalleryFrameSize, *ui_->udGalleryFrameSize, &core::GalleryProject::textGalleryFrameSize);
  binder.Bind(*ui_->checkGalleryFramesResizable, &core::GalleryProject::checkGalleryFramesResizable);
  binder.Bind(*ui_->checkGalleryFramesDisplayBorders, &core::GalleryProject::checkGalleryFramesDisplayBorders);
  binder.Bind(*ui_->checkGallerySlideShow, &core::GalleryProject::checkGallerySlideShow);
  binder.Bind(*ui_->comboGallerySlideShowBeginWith, &core::GalleryProject::comboGallerySlideShowBeginWith);
  binder.Bind(*ui_->checkGallerySlideShowAutoStart, &core::GalleryProject::checkGallerySlideShowAutoStart);
  binder.Bind(*ui_->textGallerySlideShowAutoStartDelay, *ui_->udGallerySlideShowAutoStartDelay,
              &core::GalleryProject::textGallerySlideShowAutoStartDelay);
  binder.Bind(*ui_->comboGallerySlideShowActionAfterImage,
              &core::GalleryProject::comboGallerySlideShowActionAfterImage);
  binder.Bind(*ui_->comboGallerySlideShowStartOverWith, &core::GalleryProject::comboGallerySlideShowStartOverWith);
  binder.Bind(*ui_->textGallerySlideShowDelay, *ui_->udGallerySlideShowDelay,
              &core::GalleryProject::textGallerySlideShowDelay);
  connect(ui_->btnGalleryFileNameSettings, &QAbstractButton::clicked, this, &frmGallery::FileNamesAsked);
  connect(ui_->btnGalleryMultiFrameNames, &QAbstractButton::clicked, this, &frmGallery::FrameNamesAsked);
  connect(ui_->btnGallerySingleFrameNames, &QAbstractButton::clicked, this, &frmGallery::FrameNamesAsked);
}

frmGallery::~frmGallery() = default;

void frmGallery::FocusTitle() {
  ui_->textGalleryTitle->setFocus();
}

}  // namespace vantorium::ui
