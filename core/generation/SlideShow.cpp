#include "core/generation/SlideShow.h"

#include "core/generation/OutputNaming.h"
#include "core/generation/PageLinks.h"

namespace vantorium {
namespace {

std::optional<std::string> StartOver(const RunState& run) {
  switch (SlideShowStartOverOf(run.project)) {
    case SlideShowStartOver::FirstThumbnailPage:
      return ThumbnailPageName(run.project, 1);
    case SlideShowStartOver::FirstImage:
      return WrapperPageName(run.project, run.ListText(1));
    case SlideShowStartOver::Stop:
      break;
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> SlideShowStart(const RunState& run) {
  const GalleryProject& project = run.project;
  if (!HasSlideShow(project) || !StartsByItself(project)) return std::nullopt;
  return ImageTarget(run, 1);
}

std::optional<std::string> SlideAfter(const RunState& run, std::int32_t image) {
  const GalleryProject& project = run.project;
  if (!HasSlideShow(project)) return std::nullopt;
  switch (SlideShowActionOf(project)) {
    case SlideShowAction::ThumbnailPageOfImage:
      return ThumbnailPageName(project, ThumbnailPageOfImage(project, image));
    case SlideShowAction::FirstThumbnailPage:
      return ThumbnailPageName(project, 1);
    case SlideShowAction::NextImage:
      break;
  }
  if (image == run.ImageCount) return StartOver(run);
  return WrapperPageName(project, run.ListText(image + 1));
}

}  // namespace vantorium
