#include "ui/model/dialogs/SelectColorsModel.h"

namespace vantorium {

SelectColorsModel::SelectColorsModel(std::string_view title, const PageColours& colours, const PageColours& others)
    : thumbnailPage_(title.find("Thumbnail") != std::string_view::npos), colours_(colours), others_(others) {}

std::string_view SelectColorsModel::UseOtherColorsCaption() const {
  return thumbnailPage_ ? "Copy Image Wrapper Colors" : "Copy Thumbnail Page Colors";
}

void SelectColorsModel::Choose(Colour PageColours::*which, ColourDialog& dialog) {
  Colour colour = colours_.*which;
  if (dialog.DisplayColorDialog2(colour)) colours_.*which = colour;
}

}  // namespace vantorium
