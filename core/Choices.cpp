#include "core/Choices.h"

#include "core/GalleryProject.h"

namespace vantorium::core {
namespace {

bool HasBit(LinkPlacement placement, LinkPlacement bit) {
  return (NumberOf(placement) & NumberOf(bit)) != 0;
}

}  // namespace

Placement DescriptionPlacement(Choice setting) {
  return static_cast<Placement>(setting);
}

Placement CaptionPlacement(Choice setting) {
  return static_cast<Placement>(setting + 1);
}

bool IsBeside(Placement placement) {
  return placement == Placement::Left || placement == Placement::Right;
}

bool IsAboveOrBelow(Placement placement) {
  return placement == Placement::Above || placement == Placement::Below;
}

bool HasBarAbove(LinkPlacement placement) {
  return HasBit(placement, LinkPlacement::Above);
}

bool HasBarBelow(LinkPlacement placement) {
  return HasBit(placement, LinkPlacement::Below);
}

GalleryLayout LayoutOf(const GalleryProject& project) {
  return static_cast<GalleryLayout>(project.comboGalleryLayoutType);
}

bool IsSingleFrame(const GalleryProject& project) {
  return LayoutOf(project) == GalleryLayout::SingleFrame;
}

SizedFrame SizedFrameOf(const GalleryProject& project) {
  return static_cast<SizedFrame>(project.comboGalleryFrameSizingPriority);
}

bool HasSlideShow(const GalleryProject& project) {
  return IsSingleFrame(project) && IsOn(project.checkGallerySlideShow);
}

SlideShowBegin SlideShowBeginOf(const GalleryProject& project) {
  return static_cast<SlideShowBegin>(project.comboGallerySlideShowBeginWith);
}

SlideShowAction SlideShowActionOf(const GalleryProject& project) {
  return static_cast<SlideShowAction>(project.comboGallerySlideShowActionAfterImage);
}

SlideShowStartOver SlideShowStartOverOf(const GalleryProject& project) {
  return static_cast<SlideShowStartOver>(project.comboGallerySlideShowStartOverWith);
}

bool StartsByItself(const GalleryProject& project) {
  return SlideShowBeginOf(project) == SlideShowBegin::FirstThumbnailPage &&
         IsOn(project.checkGallerySlideShowAutoStart);
}

SortingOrder SortingOrderOf(const GalleryProject& project) {
  return static_cast<SortingOrder>(project.comboImagesSortingOrder);
}

TableAlignment TableAlignmentOf(const GalleryProject& project) {
  return static_cast<TableAlignment>(project.comboThumbnailsTableAlignment);
}

LinkPlacement ImageLinkPlacement(const GalleryProject& project) {
  return static_cast<LinkPlacement>(project.comboPageLinksImageLinkPlacement);
}

LinkPlacement ThumbnailLinkPlacement(const GalleryProject& project) {
  return static_cast<LinkPlacement>(project.comboPageLinksThumbnailLinkPlacement);
}

}  // namespace vantorium::core
