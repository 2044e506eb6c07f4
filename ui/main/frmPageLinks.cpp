#include "ui/main/frmPageLinks.h"

#include "ui/widgets/FieldBinder.h"
#include "ui_frmPageLinks.h"

namespace vantorium::ui {

frmPageLinks::frmPageLinks(FieldBinder& binder, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::frmPageLinks>()) {
  ui_->setupUi(this);
  binder.Bind(*ui_->comboPageLinksThumbnailLinkPlacement, &core::GalleryProject::comboPageLinksThumbnailLinkPlacement);
  binder.Bind(*ui_->checkPageLinksThumbnailDirectLinks, &core::GalleryProject::checkPageLinksThumbnailDirectLinks);
  binder.Bind(*ui_->textPageLinksThumbnailMaxDirectLinks, *ui_->udPageLinksThumbnailMaxDirectLinks,
              &core::GalleryProject::textPageLinksThumbnailMaxDirectLinks);
  binder.Bind(*ui_->comboPageLinksImageLinkPlacement, &core::GalleryProject::comboPageLinksImageLinkPlacement);
}

frmPageLinks::~frmPageLinks() = default;

}  // namespace vantorium::ui
