#include "core/generation/SlideShow.h"

#include "core/generation/OutputNaming.h"
#include "core/generation/PageLinks.h"

namespace vantorium::generation {
namespace {

std::optional<std::string> StartOver(const RunState& run) {
  switch (core::SlideShowStartOverOf(run.project)) {
    case core::SlideShowStartOver::FirstThumbnailPage:
      return ThumbnailPageName(run.project, 1);
    case core::SlideShowStartOver::FirstImage:
      return WrapperPageName(run.project, run.ListText(1));
    case core::SlideShowStartOver::Stop:
      break;
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> SlideShowStart(const RunState& run) {
  const core::GalleryProject& project = run.project;
  if (!core::HasSlideShow(project) || !core::StartsByItself(project)) return std::nullopt;
  return ImageTarget(run, 1);
}

std::optional<std::string> SlideAfter(const RunState& run, std::int32_t image) {
  const core::GalleryProject& project = run.project;
  if (!core::HasSlideShow(project)) return std::nullopt;
  switch (core::SlideShowActionOf(project)) {
    case core::SlideShowAction::ThumbnailPageOfImage:
      return ThumbnailPageName(project, ThumbnailPageOfImage(project, image));
    case core::SlideShowAction::FirstThumbnailPage:
      return ThumbnailPageName(project, 1);
    case core::SlideShowAction::NextImage:
      break;
  }
  if (image == run.ImageCount) return StartOver(run);
  return WrapperPageName(project, run.ListText(image + 1));
}

}  // namespace vantorium::generation
