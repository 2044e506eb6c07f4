#include "core/generation/WrapperContent.h"

#include "core/generation/CellAlignments.h"
#include "core/generation/OutputNaming.h"
#include "core/generation/TemplateTags.h"

#include <fmt/format.h>

namespace vantorium {
namespace {

constexpr std::string_view kTable = R"(<TABLE CELLSPACING="2" CELLPADDING="0" BORDER="0"><TR>)";
constexpr std::string_view kTableEnd = "</TD></TR></TABLE>";

/// HEIGHT has a leading space, even without WIDTH.
std::string SizeAttributes(const GalleryProject& project) {
  if (IsOn(project.checkImageWrapperImageKeepSize)) return {};
  const std::string_view unit = IsOn(project.checkImageWrapperImageSizesInPercent) ? "%" : "";
  const std::string width = fmt::format(R"(WIDTH="{}{}")", project.textImageWrapperImageWidth, unit);
  const std::string height = fmt::format(R"( HEIGHT="{}{}")", project.textImageWrapperImageHeight, unit);
  if (!IsOn(project.checkImageWrapperImageKeepAspectRatio)) return width + height;
  return IsOn(project.checkImageWrapperImageSetWidth) ? width : height;
}

std::string ImageTag(const RunState& run, std::int32_t image) {
  std::string alt;
  if (IsOn(run.project.checkCaptionsImagesPopup)) {
    alt = fmt::format(R"(ALT="{}")", ExpandAllTags(run, run.project.ImagePopupCaption, image, kNoIndex));
  }
  return fmt::format(R"(<IMG SRC="{}" BORDER="0" {} {}>)", ImageUrl(run, image), SizeAttributes(run.project), alt);
}

std::string WithCaption(const RunState& run, std::int32_t image, std::string content) {
  const GalleryProject& project = run.project;
  if (!IsOn(project.checkCaptionsImagesRegular)) return content;
  const Placement placement = CaptionPlacement(project.comboCaptionsImagesRegularPlacement);
  const CellPair cells = ImageCaptionCells(project.comboCaptionsImagesRegularAlignment, placement);
  const std::string caption = ExpandAllTags(run, project.ImageRegularCaption, image, kNoIndex);
  switch (placement) {
    case Placement::Left:
      return fmt::format("{}<TD {}>{}</TD><TD {}>{}{}", kTable, cells.text, caption, cells.picture, content, kTableEnd);
    case Placement::Right:
      return fmt::format("{}<TD {}>{}</TD><TD {}>{}{}", kTable, cells.picture, content, cells.text, caption, kTableEnd);
    case Placement::Above:
      return fmt::format("{}<TD {}>{}</TD></TR><TR><TD {}>{}{}", kTable, cells.text, caption, cells.picture, content,
                         kTableEnd);
    case Placement::Below:
      return fmt::format("{}<TD {}>{}</TD></TR><TR><TD {}>{}{}", kTable, cells.picture, content, cells.text, caption,
                         kTableEnd);
    case Placement::None:
      break;
  }
  return content;
}

/// Puts the description around image and caption.
std::string WithDescription(const RunState& run, std::int32_t image, std::string content) {
  const Placement placement = DescriptionPlacement(run.project.comboImageDescriptionPlacement);
  if (placement == Placement::None) return content;
  const std::string_view cell = ImageDescriptionCell(run.project.comboImageDescriptionAlignment, placement);
  const std::string text = DescriptionText(run, kImages.description, image);
  switch (placement) {
    case Placement::Left:
      return fmt::format(R"({}<TD {}>{}</TD><TD ALIGN="CENTER">{}{})", kTable, cell, text, content, kTableEnd);
    case Placement::Right:
      return fmt::format(R"({}<TD ALIGN="CENTER">{}</TD><TD {}>{}{})", kTable, content, cell, text, kTableEnd);
    case Placement::Above:
      return fmt::format(R"({}<TD {}>{}</TD></TR><TR><TD ALIGN="CENTER">{}{})", kTable, cell, text, content, kTableEnd);
    case Placement::Below:
      return fmt::format(R"({}<TD ALIGN="CENTER">{}</TD></TR><TR><TD {}>{}{})", kTable, content, cell, text, kTableEnd);
    case Placement::None:
      break;
  }
  return content;
}

}  // namespace

std::string WrapperContent(const RunState& run, std::int32_t image) {
  return WithDescription(run, image, WithCaption(run, image, ImageTag(run, image)));
}

}  // namespace vantorium
