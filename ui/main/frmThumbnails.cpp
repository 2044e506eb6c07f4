#include "ui/main/frmThumbnails.h"

#include "ui/qt/QtText.h"
#include "ui/widgets/FieldBinder.h"
#include "ui_frmThumbnails.h"

namespace vantorium::ui {

frmThumbnails::frmThumbnails(FieldBinder& binder, const env::PathMap& paths, ColorDialog& colors, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::frmThumbnails>()) {
  ui_->setupUi(this);
  binder.Bind(*ui_->textThumbnailsTableRows, *ui_->udThumbnailsTableRows,
              &core::GalleryProject::textThumbnailsTableRows);
  binder.Bind(*ui_->textThumbnailsTableColumns, *ui_->udThumbnailsTableColumns,
              &core::GalleryProject::textThumbnailsTableColumns);
  binder.Bind(*ui_->textThumbnailsTableBorder, *ui_->udThumbnailsTableBorder,
              &core::GalleryProject::textThumbnailsTableBorder);
  binder.Bind(*ui_->textThumbnailsTableCellSpacing, *ui_->udThumbnailsTableCellSpacing,
              &core::GalleryProject::textThumbnailsTableCellSpacing);
  binder.Bind(*ui_->textThumbnailsTableCellPadding, *ui_->udThumbnailsTableCellPadding,
              &core::GalleryProject::textThumbnailsTableCellPadding);
  binder.Bind(*ui_->comboThumbnailsTableAlignment, &core::GalleryProject::comboThumbnailsTableAlignment);
  binder.BindPath(*ui_->textThumbnailsTableBackdrop, paths, &core::GalleryProject::textThumbnailsTableBackdrop);
  binder.Bind(*ui_->checkThumbnailsTableUseBGColor, &core::GalleryProject::checkThumbnailsTableUseBGColor);
  binder.Bind(*ui_->btnThumbnailsTableBGColor, colors, &core::GalleryProject::btnThumbnailsTableBGColor);
  binder.Bind(*ui_->checkThumbnailsPageSetColors, &core::GalleryProject::checkThumbnailsPageSetColors);
  binder.BindPath(*ui_->textThumbnailsPageBackdrop, paths, &core::GalleryProject::textThumbnailsPageBackdrop);
  binder.Bind(*ui_->checkThumbnailsImageKeepAspectRatio, &core::GalleryProject::checkThumbnailsImageKeepAspectRatio);
  binder.Bind(*ui_->checkThumbnailsImageSetWidth, &core::GalleryProject::checkThumbnailsImageSetWidth);
  binder.Bind(*ui_->textThumbnailsImageWidth, *ui_->udThumbnailsImageWidth,
              &core::GalleryProject::textThumbnailsImageWidth);
  binder.Bind(*ui_->textThumbnailsImageHeight, *ui_->udThumbnailsImageHeight,
              &core::GalleryProject::textThumbnailsImageHeight);
}

frmThumbnails::~frmThumbnails() = default;

void frmThumbnails::ShowPageCount(const std::string& text) {
  ui_->lblThumbnailsPageCount->setText(ToQt(text));
}

}  // namespace vantorium::ui
