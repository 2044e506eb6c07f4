#include "ui/model/dialogs/SelectColorsModel.h"

namespace vantorium::ui {

SelectColorsModel::SelectColorsModel(std::string_view title, const core::PageColors& colors,
                                     const core::PageColors& others)
    : thumbnailPage_(title.find("Thumbnail") != std::string_view::npos), colors_(colors), others_(others) {}

std::string_view SelectColorsModel::UseOtherColorsCaption() const {
  return thumbnailPage_ ? "Copy Image Wrapper Colors" : "Copy Thumbnail Page Colors";
}

void SelectColorsModel::Choose(core::Color core::PageColors::*which, ColorDialog& dialog) {
  core::Color color = colors_.*which;
  if (dialog.DisplayColorDialog2(color)) colors_.*which = color;
}

}  // namespace vantorium::ui
