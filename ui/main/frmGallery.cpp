#include "ui/main/frmGallery.h"

#include "ui/widgets/FieldBinder.h"
#include "ui_frmGallery.h"

namespace vantorium {

frmGallery::frmGallery(FieldBinder& binder, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::frmGallery>()) {
  ui_->setupUi(this);
  binder.Bind(*ui_->textGalleryTitle, &GalleryProject::textGalleryTitle);
  binder.Bind(*ui_->comboGalleryLayoutType, &GalleryProject::comboGalleryLayoutType);
  binder.Bind(*ui_->comboGalleryFrameSizingPriority, &GalleryProject::comboGalleryFrameSizingPriority);
  binder.Bind(*ui_->checkGalleryFrameSizeInPercent, &GalleryProject::checkGalleryFrameSizeInPercent);
  binder.Bind(*ui_->textGalleryFrameSize, *ui_->udGalleryFrameSize, &GalleryProject::textGalleryFrameSize);
  binder.Bind(*ui_->checkGalleryFramesResizable, &GalleryProject::checkGalleryFramesResizable);
  binder.Bind(*ui_->checkGalleryFramesDisplayBorders, &GalleryProject::checkGalleryFramesDisplayBorders);
  binder.Bind(*ui_->checkGallerySlideShow, &GalleryProject::checkGallerySlideShow);
  binder.Bind(*ui_->comboGallerySlideShowBeginWith, &GalleryProject::comboGallerySlideShowBeginWith);
  binder.Bind(*ui_->checkGallerySlideShowAutoStart, &GalleryProject::checkGallerySlideShowAutoStart);
  binder.Bind(*ui_->textGallerySlideShowAutoStartDelay, *ui_->udGallerySlideShowAutoStartDelay,
              &GalleryProject::textGallerySlideShowAutoStartDelay);
  binder.Bind(*ui_->comboGallerySlideShowActionAfterImage, &GalleryProject::comboGallerySlideShowActionAfterImage);
  binder.Bind(*ui_->comboGallerySlideShowStartOverWith, &GalleryProject::comboGallerySlideShowStartOverWith);
  binder.Bind(*ui_->textGallerySlideShowDelay, *ui_->udGallerySlideShowDelay,
              &GalleryProject::textGallerySlideShowDelay);
  connect(ui_->btnGalleryFileNameSettings, &QAbstractButton::clicked, this, &frmGallery::FileNamesAsked);
  connect(ui_->btnGalleryMultiFrameNames, &QAbstractButton::clicked, this, &frmGallery::FrameNamesAsked);
  connect(ui_->btnGallerySingleFrameNames, &QAbstractButton::clicked, this, &frmGallery::FrameNamesAsked);
}

frmGallery::~frmGallery() = default;

void frmGallery::FocusTitle() {
  ui_->textGalleryTitle->setFocus();
}

}  // namespace vantorium
