#include "core/generation/SlideShow.h"

#include "core/generation/OutputNaming.h"
#include "core/generation/PageLinks.h"

namespace vantorium {
namespace {

// Values of comboGallerySlideShowBeginWith, comboGallerySlideShowActionAfterImage, comboGallerySlideShowStartOverWith.
constexpr Choice kBeginWithThumbnailPage = 0;
constexpr Choice kToThumbnailPageOfImage = 1;
constexpr Choice kToFirstThumbnailPage = 2;
constexpr Choice kStartOverWithThumbnailPage = 0;
constexpr Choice kStartOverWithImage = 1;

/// Slide shows need the single-frame layout: in the others the thumbnails stay visible.
bool HasSlideShow(const GalleryProject& project) {
  return project.comboGalleryLayoutType == 0 && project.checkGallerySlideShow == 1;
}

std::optional<std::string> StartOver(const RunState& run) {
  switch (run.project.comboGallerySlideShowStartOverWith) {
    case kStartOverWithThumbnailPage:
      return ThumbnailPageName(run.project, 1);
    case kStartOverWithImage:
      return WrapperPageName(run.project, run.ListText(1));
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<std::string> SlideShowStart(const RunState& run) {
  const GalleryProject& project = run.project;
  const bool starts = HasSlideShow(project) && project.comboGallerySlideShowBeginWith == kBeginWithThumbnailPage &&
                      project.checkGallerySlideShowAutoStart == 1;
  if (!starts) return std::nullopt;
  return ImageTarget(run, 1);
}

std::optional<std::string> SlideAfter(const RunState& run, std::int32_t image) {
  const GalleryProject& project = run.project;
  if (!HasSlideShow(project)) return std::nullopt;
  switch (project.comboGallerySlideShowActionAfterImage) {
    case kToThumbnailPageOfImage:
      return ThumbnailPageName(project, ThumbnailPageOfImage(project, image));
    case kToFirstThumbnailPage:
      return ThumbnailPageName(project, 1);
    default:
      break;
  }
  if (image == run.ImageCount) return StartOver(run);
  return WrapperPageName(project, run.ListText(image + 1));
}

}  // namespace vantorium
