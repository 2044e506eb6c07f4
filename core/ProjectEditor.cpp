#include "core/ProjectEditor.h"

#include "core/GalleryTargets.h"
#include "core/ProjectFields.h"
#include "env/Numbers.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vantorium::core {
namespace {

using Project = GalleryProject;

void RepairEmpty(std::string& field, const std::string& value, bool& modified) {
  if (!field.empty()) return;
  field = value;
  modified = true;
}

void RepairDisabledGraphic(LinkSettings& link) {
  if (link.textLinkGraphicDisabled.empty()) link.textLinkGraphicDisabled = link.textLinkGraphic;
}

}  // namespace

std::string Clamped(std::string Project::*field, std::string value) {
  const auto number = env::ParseNumber(value);
  if (field == &Project::textPageLinksThumbnailMaxDirectLinks && !number) return {};
  const auto& range = FieldOf(field).range;
  if (!number || !range) return value;
  if (range->lowerBound && *number < *range->lowerBound) return std::to_string(*range->lowerBound);
  if (range->upperBound && *number > *range->upperBound) return std::to_string(*range->upperBound);
  return value;
}

void ProjectEditor::Set(std::string Project::*field, std::string value) {
  const std::string before = std::exchange(project_.*field, Clamped(field, std::move(value)));
  try {
    if (field == &Project::textGalleryFrameSize) FrameSizeEdited();
  } catch (...) {
    project_.*field = before;
    throw;
  }
  modified_ = true;
}

void ProjectEditor::Set(std::int16_t Project::*field, std::int16_t value) {
  project_.*field = value;
  modified_ = true;
  if (field == &Project::comboGalleryLayoutType) ImageFrameNameForLayout(project_, value);
  if (field == &Project::checkGalleryFrameSizeInPercent) FrameSizeEdited();
  if (field == &Project::checkGallerySlideShow && IsOn(value)) project_.checkImageWrapperUse = kOn;
  if (field == &Project::checkImageWrapperUse && IsOff(value)) project_.checkGallerySlideShow = kOff;
}

void ProjectEditor::Set(Color Project::*field, Color value) {
  project_.*field = value;
  modified_ = true;
}

void ProjectEditor::Set(LinkSettings Project::*field, LinkSettings value) {
  project_.*field = std::move(value);
  modified_ = true;
}

void ProjectEditor::Set(image::ImageFilterSettings Project::*field, image::ImageFilterSettings value) {
  project_.*field = value;
  modified_ = true;
}

void ProjectEditor::Set(image::WatermarkSettings Project::*field, image::WatermarkSettings value) {
  project_.*field = std::move(value);
  modified_ = true;
}

void ProjectEditor::FrameSizeEdited() {
  std::string& size = project_.textGalleryFrameSize;
  if (size.empty()) return;
  if (IsOn(project_.checkGalleryFrameSizeInPercent) && env::ParseNumber(size).value_or(0) > 99) size = "99";
  const std::int32_t pixelsOrPercent = env::ParseInt32(size);
  const bool thumbnails = SizedFrameOf(project_) == SizedFrame::Thumbnails;
  (thumbnails ? project_.ThumbnailFrameSize : project_.ImageFrameSize) = pixelsOrPercent;
}

void ImageFrameNameForLayout(Project& project, Choice layoutType) {
  constexpr std::array<std::string_view, 4> kBrowserTargets = {"_top", "_self", "_parent", "_blank"};
  if (layoutType == NumberOf(GalleryLayout::SingleFrame)) {
    project.comboImageFrameName = "_self";
  } else if (std::ranges::count(kBrowserTargets, project.comboImageFrameName) > 0) {
    project.comboImageFrameName = "image_frame";
  }
}

void NormalizeForOutput(Project& project, bool& modified) {
  RepairEmpty(project.textThumbnailsImageWidth, "1", modified);
  RepairEmpty(project.textThumbnailsImageHeight, "1", modified);
  RepairEmpty(project.textThumbnailsTableRows, "1", modified);
  RepairEmpty(project.textThumbnailsTableColumns, "1", modified);
  RepairEmpty(project.textThumbnailsTableCellSpacing, "0", modified);
  RepairEmpty(project.textThumbnailsTableCellPadding, "0", modified);
  RepairEmpty(project.textThumbnailsTableBorder, "0", modified);
  RepairEmpty(project.textGallerySlideShowDelay, DefaultOf(&Project::textGallerySlideShowDelay), modified);
  RepairEmpty(project.textGallerySlideShowAutoStartDelay, DefaultOf(&Project::textGallerySlideShowAutoStartDelay),
              modified);

  const bool thumbnailNameTaken = project.comboImageFrameName == "thumbnail_frame";
  RepairEmpty(project.textThumbnailFrameName, thumbnailNameTaken ? "thumbnail_frame_2" : "thumbnail_frame", modified);
  const bool imageNameTaken = project.textThumbnailFrameName == "image_frame";
  RepairEmpty(project.comboImageFrameName, imageNameTaken ? "image_frame_2" : "image_frame", modified);

  RepairEmpty(project.textImageWrapperImageWidth, "1", modified);
  RepairEmpty(project.textImageWrapperImageHeight, "1", modified);
  RepairEmpty(project.textPageLinksThumbnailMaxDirectLinks, "0", modified);

  for (const PageLink& link : kPageLinks) {
    if (link.goal == LinkGoal::Next || link.goal == LinkGoal::Previous) RepairDisabledGraphic(project.*link.settings);
  }
}

}  // namespace vantorium::core
