#include "ui/main/frmThumbnails.h"

#include "ui/qt/QtText.h"
#include "ui/widgets/FieldBinder.h"
#include "ui_frmThumbnails.h"

namespace vantorium {

frmThumbnails::frmThumbnails(FieldBinder& binder, const PathMap& paths, ColorDialog& colors, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::frmThumbnails>()) {
  ui_->setupUi(this);
  binder.Bind(*ui_->textThumbnailsTableRows, *ui_->udThumbnailsTableRows, &GalleryProject::textThumbnailsTableRows);
  binder.Bind(*ui_->textThumbnailsTableColumns, *ui_->udThumbnailsTableColumns,
              &GalleryProject::textThumbnailsTableColumns);
  binder.Bind(*ui_->textThumbnailsTableBorder, *ui_->udThumbnailsTableBorder,
              &GalleryProject::textThumbnailsTableBorder);
  binder.Bind(*ui_->textThumbnailsTableCellSpacing, *ui_->udThumbnailsTableCellSpacing,
              &GalleryProject::textThumbnailsTableCellSpacing);
  binder.Bind(*ui_->textThumbnailsTableCellPadding, *ui_->udThumbnailsTableCellPadding,
              &GalleryProject::textThumbnailsTableCellPadding);
  binder.Bind(*ui_->comboThumbnailsTableAlignment, &GalleryProject::comboThumbnailsTableAlignment);
  binder.BindPath(*ui_->textThumbnailsTableBackdrop, paths, &GalleryProject::textThumbnailsTableBackdrop);
  binder.Bind(*ui_->checkThumbnailsTableUseBGColor, &GalleryProject::checkThumbnailsTableUseBGColor);
  binder.Bind(*ui_->btnThumbnailsTableBGColor, colors, &GalleryProject::btnThumbnailsTableBGColor);
  binder.Bind(*ui_->checkThumbnailsPageSetColors, &GalleryProject::checkThumbnailsPageSetColors);
  binder.BindPath(*ui_->textThumbnailsPageBackdrop, paths, &GalleryProject::textThumbnailsPageBackdrop);
  binder.Bind(*ui_->checkThumbnailsImageKeepAspectRatio, &GalleryProject::checkThumbnailsImageKeepAspectRatio);
  binder.Bind(*ui_->checkThumbnailsImageSetWidth, &GalleryProject::checkThumbnailsImageSetWidth);
  binder.Bind(*ui_->textThumbnailsImageWidth, *ui_->udThumbnailsImageWidth, &GalleryProject::textThumbnailsImageWidth);
  binder.Bind(*ui_->textThumbnailsImageHeight, *ui_->udThumbnailsImageHeight,
              &GalleryProject::textThumbnailsImageHeight);
}

frmThumbnails::~frmThumbnails() = default;

void frmThumbnails::ShowPageCount(const std::string& text) {
  ui_->lblThumbnailsPageCount->setText(ToQt(text));
}

}  // namespace vantorium
