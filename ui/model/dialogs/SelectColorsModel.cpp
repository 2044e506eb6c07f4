#include "ui/model/dialogs/SelectColorsModel.h"

namespace vantorium {

SelectColorsModel::SelectColorsModel(std::string_view title, const PageColors& colors, const PageColors& others)
    : thumbnailPage_(title.find("Thumbnail") != std::string_view::npos), colors_(colors), others_(others) {}

std::string_view SelectColorsModel::UseOtherColorsCaption() const {
  return thumbnailPage_ ? "Copy Image Wrapper Colors" : "Copy Thumbnail Page Colors";
}

void SelectColorsModel::Choose(Color PageColors::*which, ColorDialog& dialog) {
  Color color = colors_.*which;
  if (dialog.DisplayColorDialog2(color)) colors_.*which = color;
}

}  // namespace vantorium
