#include "core/generation/CollectImages.h"

#include "core/generation/OutputNaming.h"
#include "env/Numbers.h"
#include "env/RuntimeFailure.h"
#include "image/Photograph.h"

#include <algorithm>

namespace vantorium::generation {
namespace {

/// Runs one statement and ignores its RuntimeFailure; what it would have set keeps its value.
template <typename Statement>
void Ignoring(Statement statement) {
  try {
    statement();
  } catch (const env::RuntimeFailure&) {
  }
}

bool ReadSourceSize(const RunState& run, const ImageRunInfo& image, std::int32_t& width, std::int32_t& height) {
  const auto native = run.files.Paths().ToNative(image.Path);
  return native && image::ReadPhotographSize(*native, core::IsOn(run.project.checkImagesUpright), width, height);
}

void GivenWidthSetsHeight(const core::GalleryProject& project, ImageRunInfo& image, double w, double h) {
  Ignoring([&] { image.Width = env::ParseInt32(project.textImageWrapperImageWidth); });
  Ignoring([&] { image.Height = env::ToInt32(env::Divide(h, w) * image.Width); });
}

void GivenHeightSetsWidth(const core::GalleryProject& project, ImageRunInfo& image, double w, double h) {
  Ignoring([&] { image.Height = env::ParseInt32(project.textImageWrapperImageHeight); });
  Ignoring([&] { image.Width = env::ToInt32(env::Divide(w, h) * image.Height); });
}

void FindImageSize(const RunState& run, ImageRunInfo& image) {
  const core::GalleryProject& project = run.project;
  std::int32_t w = 0;
  std::int32_t h = 0;
  if (core::IsOn(project.checkImageWrapperImageKeepSize)) {
    Ignoring([&] { std::ignore = ReadSourceSize(run, image, image.Width, image.Height); });
  } else if (core::IsOn(project.checkImageWrapperImageKeepAspectRatio)) {
    if (!ReadSourceSize(run, image, w, h)) return;
    if (core::IsOn(project.checkImageWrapperImageSetWidth)) {
      GivenWidthSetsHeight(project, image, w, h);
    } else {
      GivenHeightSetsWidth(project, image, w, h);
    }
  } else {
    Ignoring([&] { image.Width = env::ParseInt32(project.textImageWrapperImageWidth); });
    Ignoring([&] { image.Height = env::ParseInt32(project.textImageWrapperImageHeight); });
  }
}

/// The thumbnail keeps the aspect ratio of the image as the gallery shows it, not of the source.
void FindThumbnailSize(const core::GalleryProject& project, ImageRunInfo& image) {
  const bool keepRatio = core::IsOn(project.checkThumbnailsImageKeepAspectRatio);
  const bool widthGiven = core::IsOn(project.checkThumbnailsImageSetWidth);
  if (!keepRatio || widthGiven) {
    Ignoring([&] { image.ThumbWidth = env::ParseInt32(project.textThumbnailsImageWidth); });
  }
  if (!keepRatio || !widthGiven) {
    Ignoring([&] { image.ThumbHeight = env::ParseInt32(project.textThumbnailsImageHeight); });
  }
  if (!keepRatio) return;
  if (widthGiven) {
    Ignoring([&] { image.ThumbHeight = env::ToInt32(env::Divide(image.Height, image.Width) * image.ThumbWidth); });
  } else {
    Ignoring([&] { image.ThumbWidth = env::ToInt32(env::Divide(image.Width, image.Height) * image.ThumbHeight); });
  }
}

void Raise(std::int32_t& maximum, std::int32_t value) {
  maximum = std::max(maximum, value);
}

ImageRunInfo Collect(RunState& run, std::size_t index) {
  ImageRunInfo image = InfoOfImage(run.images, index);
  Ignoring([&] { image.FileTime = run.files.GetFileWriteTime(image.Path); });
  FindImageSize(run, image);
  Raise(run.MaxImageWidth, image.Width);
  Raise(run.MaxImageHeight, image.Height);
  FindThumbnailSize(run.project, image);
  Raise(run.MaxThumbWidth, image.ThumbWidth);
  Raise(run.MaxThumbHeight, image.ThumbHeight);
  return image;
}

void ShowCount(const RunContext& context, std::size_t collected, std::size_t total) {
  context.progress.SetProgress(static_cast<std::int32_t>(collected));
  context.Announce("Collecting Image Information (" + std::to_string(collected) + " out of " + std::to_string(total) +
                   ")...");
}

}  // namespace

PhaseResult CollectImages(const RunContext& context) {
  constexpr std::size_t kDisplayEvery = 100;
  RunState& run = context.run;
  const std::size_t total = run.images.Count();
  context.Announce("Collecting Image Information...");
  run.RunInfo.clear();
  run.RunInfo.reserve(total);
  for (std::size_t index = 1; index <= total; ++index) {
    context.environment.loop.Turn();
    if (context.environment.cancel.CancelRequested()) return RunEnd::Cancelled;
    run.RunInfo.push_back(Collect(run, index));
    if (index % kDisplayEvery == 0) ShowCount(context, index, total);
  }
  context.progress.SetProgress(static_cast<std::int32_t>(total));
  context.Announce("Collecting Image Information (complete)...");
  context.environment.loop.Turn();
  run.ImageCount = static_cast<std::int32_t>(total);
  run.ThumbnailPageCount = core::ThumbnailPageCount(run.project, run.ImageCount);
  return kGoOn;
}

}  // namespace vantorium::generation
