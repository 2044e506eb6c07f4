#include "core/generation/WrapperContent.h"

#include "core/generation/CellAlignments.h"
#include "core/generation/OutputNaming.h"
#include "core/generation/TemplateTags.h"

#include <fmt/format.h>

namespace vantorium::generation {
namespace {

constexpr std::string_view kTable = R"(<TABLE CELLSPACING="2" CELLPADDING="0" BORDER="0"><TR>)";
constexpr std::string_view kTableEnd = "</TD></TR></TABLE>";

/// HEIGHT has a leading space, even without WIDTH.
std::string SizeAttributes(const core::GalleryProject& project) {
  if (core::IsOn(project.checkImageWrapperImageKeepSize)) return {};
  const std::string_view unit = core::IsOn(project.checkImageWrapperImageSizesInPercent) ? "%" : "";
  const std::string width = fmt::format(R"(WIDTH="{}{}")", project.textImageWrapperImageWidth, unit);
  const std::string height = fmt::format(R"( HEIGHT="{}{}")", project.textImageWrapperImageHeight, unit);
  if (!core::IsOn(project.checkImageWrapperImageKeepAspectRatio)) return width + height;
  return core::IsOn(project.checkImageWrapperImageSetWidth) ? width : height;
}

std::string ImageTag(const RunState& run, std::int32_t image) {
  std::string alt;
  if (core::IsOn(run.project.checkCaptionsImagesPopup)) {
    alt = fmt::format(R"(ALT="{}")", ExpandAllTags(run, run.project.ImagePopupCaption, image, kNoIndex));
  }
  return fmt::format(R"(<IMG SRC="{}" BORDER="0" {} {}>)", ImageUrl(run, image), SizeAttributes(run.project), alt);
}

std::string WithCaption(const RunState& run, std::int32_t image, std::string content) {
  const core::GalleryProject& project = run.project;
  if (!core::IsOn(project.checkCaptionsImagesRegular)) return content;
  const core::Placement placement = core::CaptionPlacement(project.comboCaptionsImagesRegularPlacement);
  const CellPair cells = ImageCaptionCells(project.comboCaptionsImagesRegularAlignment, placement);
  const std::string caption = ExpandAllTags(run, project.ImageRegularCaption, image, kNoIndex);
  switch (placement) {
    case core::Placement::Left:
      return fmt::format("{}<TD {}>{}</TD><TD {}>{}{}", kTable, cells.text, caption, cells.picture, content, kTableEnd);
    case core::Placement::Right:
      return fmt::format("{}<TD {}>{}</TD><TD {}>{}{}", kTable, cells.picture, content, cells.text, caption, kTableEnd);
    case core::Placement::Above:
      return fmt::format("{}<TD {}>{}</TD></TR><TR><TD {}>{}{}", kTable, cells.text, caption, cells.picture, content,
                         kTableEnd);
    case core::Placement::Below:
      return fmt::format("{}<TD {}>{}</TD></TR><TR><TD {}>{}{}", kTable, cells.picture, content, cells.text, caption,
                         kTableEnd);
    case core::Placement::None:
      break;
  }
  return content;
}

/// Puts the description around image and caption.
std::string WithDescription(const RunState& run, std::int32_t image, std::string content) {
  const core::Placement placement = core::DescriptionPlacement(run.project.comboImageDescriptionPlacement);
  if (placement == core::Placement::None) return content;
  const std::string_view cell = ImageDescriptionCell(run.project.comboImageDescriptionAlignment, placement);
  const std::string text = DescriptionText(run, core::kImages.description, image);
  switch (placement) {
    case core::Placement::Left:
      return fmt::format(R"({}<TD {}>{}</TD><TD ALIGN="CENTER">{}{})", kTable, cell, text, content, kTableEnd);
    case core::Placement::Right:
      return fmt::format(R"({}<TD ALIGN="CENTER">{}</TD><TD {}>{}{})", kTable, content, cell, text, kTableEnd);
    case core::Placement::Above:
      return fmt::format(R"({}<TD {}>{}</TD></TR><TR><TD ALIGN="CENTER">{}{})", kTable, cell, text, content, kTableEnd);
    case core::Placement::Below:
      return fmt::format(R"({}<TD ALIGN="CENTER">{}</TD></TR><TR><TD {}>{}{})", kTable, content, cell, text, kTableEnd);
    case core::Placement::None:
      break;
  }
  return content;
}

}  // namespace

std::string WrapperContent(const RunState& run, std::int32_t image) {
  return WithDescription(run, image, WithCaption(run, image, ImageTag(run, image)));
}

}  // namespace vantorium::generation
