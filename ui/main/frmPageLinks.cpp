#include "ui/main/frmPageLinks.h"

#include "ui/widgets/FieldBinder.h"
#include "ui_frmPageLinks.h"

namespace vantorium {

frmPageLinks::frmPageLinks(FieldBinder& binder, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::frmPageLinks>()) {
  ui_->setupUi(this);
  binder.Bind(*ui_->comboPageLinksThumbnailLinkPlacement, &GalleryProject::comboPageLinksThumbnailLinkPlacement);
  binder.Bind(*ui_->checkPageLinksThumbnailDirectLinks, &GalleryProject::checkPageLinksThumbnailDirectLinks);
  binder.Bind(*ui_->textPageLinksThumbnailMaxDirectLinks, *ui_->udPageLinksThumbnailMaxDirectLinks,
              &GalleryProject::textPageLinksThumbnailMaxDirectLinks);
  binder.Bind(*ui_->comboPageLinksImageLinkPlacement, &GalleryProject::comboPageLinksImageLinkPlacement);
}

frmPageLinks::~frmPageLinks() = default;

}  // namespace vantorium
