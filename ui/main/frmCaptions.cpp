#include "ui/main/frmCaptions.h"

#include "ui/widgets/FieldBinder.h"
#include "ui_frmCaptions.h"

namespace vantorium::ui {

frmCaptions::frmCaptions(FieldBinder& binder, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::frmCaptions>()) {
  ui_->setupUi(this);
  binder.Bind(*ui_->checkCaptionsImagesRegular, &core::GalleryProject::checkCaptionsImagesRegular);
  binder.Bind(*ui_->comboCaptionsImagesRegularPlacement, &core::GalleryProject::comboCaptionsImagesRegularPlacement);
  binder.Bind(*ui_->comboCaptionsImagesRegularAlignment, &core::GalleryProject::comboCaptionsImagesRegularAlignment);
  binder.Bind(*ui_->checkCaptionsImagesPopup, &core::GalleryProject::checkCaptionsImagesPopup);
  binder.Bind(*ui_->checkCaptionsThumbnailsRegular, &core::GalleryProject::checkCaptionsThumbnailsRegular);
  binder.Bind(*ui_->comboCaptionsThumbnailsRegularPlacement,
              &core::GalleryProject::comboCaptionsThumbnailsRegularPlacement);
  binder.Bind(*ui_->comboCaptionsThumbnailsRegularAlignment,
              &core::GalleryProject::comboCaptionsThumbnailsRegularAlignment);
  binder.Bind(*ui_->checkCaptionsThumbnailsPopup, &core::GalleryProject::checkCaptionsThumbnailsPopup);
}

frmCaptions::~frmCaptions() = default;

}  // namespace vantorium::ui
