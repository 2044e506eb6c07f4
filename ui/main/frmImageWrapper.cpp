#include "ui/main/frmImageWrapper.h"

#include "ui/widgets/FieldBinder.h"
#include "ui_frmImageWrapper.h"

namespace vantorium {

frmImageWrapper::frmImageWrapper(FieldBinder& binder, const PathMap& paths, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::frmImageWrapper>()) {
  ui_->setupUi(this);
  binder.Bind(*ui_->checkImageWrapperUse, &GalleryProject::checkImageWrapperUse);
  binder.Bind(*ui_->checkImageWrapperImageKeepSize, &GalleryProject::checkImageWrapperImageKeepSize);
  binder.Bind(*ui_->checkImageWrapperImagePhysicalResize, &GalleryProject::checkImageWrapperImagePhysicalResize);
  binder.Bind(*ui_->checkImageWrapperImageSizesInPercent, &GalleryProject::checkImageWrapperImageSizesInPercent);
  binder.Bind(*ui_->checkImageWrapperImageKeepAspectRatio, &GalleryProject::checkImageWrapperImageKeepAspectRatio);
  binder.Bind(*ui_->checkImageWrapperImageSetWidth, &GalleryProject::checkImageWrapperImageSetWidth);
  binder.Bind(*ui_->textImageWrapperImageWidth, *ui_->udImageWrapperImageWidth,
              &GalleryProject::textImageWrapperImageWidth);
  binder.Bind(*ui_->textImageWrapperImageHeight, *ui_->udImageWrapperImageHeight,
              &GalleryProject::textImageWrapperImageHeight);
  binder.Bind(*ui_->checkImageWrapperSetColors, &GalleryProject::checkImageWrapperSetColors);
  binder.BindPath(*ui_->textImageWrapperBackdrop, paths, &GalleryProject::textImageWrapperBackdrop);
}

frmImageWrapper::~frmImageWrapper() = default;

}  // namespace vantorium
