#include "ui/main/frmCaptions.h"

#include "ui/widgets/FieldBinder.h"
#include "ui_frmCaptions.h"

namespace vantorium {

frmCaptions::frmCaptions(FieldBinder& binder, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::frmCaptions>()) {
  ui_->setupUi(this);
  binder.Bind(*ui_->checkCaptionsImagesRegular, &GalleryProject::checkCaptionsImagesRegular);
  binder.Bind(*ui_->comboCaptionsImagesRegularPlacement, &GalleryProject::comboCaptionsImagesRegularPlacement);
  binder.Bind(*ui_->comboCaptionsImagesRegularAlignment, &GalleryProject::comboCaptionsImagesRegularAlignment);
  binder.Bind(*ui_->checkCaptionsImagesPopup, &GalleryProject::checkCaptionsImagesPopup);
  binder.Bind(*ui_->checkCaptionsThumbnailsRegular, &GalleryProject::checkCaptionsThumbnailsRegular);
  binder.Bind(*ui_->comboCaptionsThumbnailsRegularPlacement, &GalleryProject::comboCaptionsThumbnailsRegularPlacement);
  binder.Bind(*ui_->comboCaptionsThumbnailsRegularAlignment, &GalleryProject::comboCaptionsThumbnailsRegularAlignment);
  binder.Bind(*ui_->checkCaptionsThumbnailsPopup, &GalleryProject::checkCaptionsThumbnailsPopup);
}

frmCaptions::~frmCaptions() = default;

}  // namespace vantorium
