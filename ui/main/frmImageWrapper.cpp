#include "ui/main/frmImageWrapper.h"

#include "ui/widgets/FieldBinder.h"
#include "ui_frmImageWrapper.h"

namespace vantorium::ui {

frmImageWrapper::frmImageWrapper(FieldBinder& binder, const env::PathMap& paths, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::frmImageWrapper>()) {
  ui_->setupUi(this);
  binder.Bind(*ui_->checkImageWrapperUse, &core::GalleryProject::checkImageWrapperUse);
  binder.Bind(*ui_->checkImageWrapperImageKeepSize, &core::GalleryProject::checkImageWrapperImageKeepSize);
  binder.Bind(*ui_->checkImageWrapperImagePhysicalResize, &core::GalleryProject::checkImageWrapperImagePhysicalResize);
  binder.Bind(*ui_->checkImageWrapperImageSizesInPercent, &core::GalleryProject::checkImageWrapperImageSizesInPercent);
  binder.Bind(*ui_->checkImageWrapperImageKeepAspectRatio,
              &core::GalleryProject::checkImageWrapperImageKeepAspectRatio);
  binder.Bind(*ui_->checkImageWrapperImageSetWidth, &core::GalleryProject::checkImageWrapperImageSetWidth);
  binder.Bind(*ui_->textImageWrapperImageWidth, *ui_->udImageWrapperImageWidth,
              &core::GalleryProject::textImageWrapperImageWidth);
  binder.Bind(*ui_->textImageWrapperImageHeight, *ui_->udImageWrapperImageHeight,
              &core::GalleryProject::textImageWrapperImageHeight);
  binder.Bind(*ui_->checkImageWrapperSetColors, &core::GalleryProject::checkImageWrapperSetColors);
  binder.BindPath(*ui_->textImageWrapperBackdrop, paths, &core::GalleryProject::textImageWrapperBackdrop);
}

frmImageWrapper::~frmImageWrapper() = default;

}  // namespace vantorium::ui
