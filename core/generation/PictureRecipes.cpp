#include "core/generation/PictureRecipes.h"

namespace vantorium::generation {

namespace {

// Each output of a run has its own noise.
std::uint64_t NoiseOfImage(std::int32_t image) {
  return 2 * static_cast<std::uint64_t>(image);
}
std::uint64_t NoiseOfThumbnail(std::int32_t image) {
  return NoiseOfImage(image) + 1;
}

std::shared_ptr<const image::WatermarkPainter> PainterOf(const image::WatermarkSettings& settings,
                                                         const env::Screen& screen, const image::TextRaster& texts) {
  if (!core::IsOn(settings.checkUseWatermark)) return nullptr;
  return std::make_shared<const image::WatermarkPainter>(settings, screen.PixelsPerInch(), texts);
}

bool AreImagesResized(const core::GalleryProject& project) {
  return core::IsOff(project.checkImageWrapperImageKeepSize) &&
         core::IsOn(project.checkImageWrapperImagePhysicalResize);
}

}  // namespace

void PrepareWatermarks(RunState& run, const env::Screen& screen, const image::TextRaster& texts) {
  run.ImageWatermark = PainterOf(run.project.ImageWatermark, screen, texts);
  run.ThumbnailWatermark = PainterOf(run.project.ThumbnailWatermark, screen, texts);
}

bool AreImagesCopied(const core::GalleryProject& project) {
  return !AreImagesResized(project) && !project.ImageFilters.AnyFilter() &&
         !core::IsOn(project.ImageWatermark.checkUseWatermark);
}

std::optional<image::PictureRecipe> ImageRecipe(const RunState& run, std::int32_t image) {
  const core::GalleryProject& project = run.project;
  if (AreImagesCopied(project)) return std::nullopt;
  image::PictureRecipe recipe{
      .noiseNumber = NoiseOfImage(image), .filters = project.ImageFilters, .watermark = run.ImageWatermark};
  const ImageRunInfo& info = run.Info(image);
  if (AreImagesResized(project)) recipe.size = image::PictureSize{info.Width, info.Height};
  return recipe;
}

image::PictureRecipe ThumbnailRecipe(const RunState& run, std::int32_t image) {
  const ImageRunInfo& info = run.Info(image);
  return {.noiseNumber = NoiseOfThumbnail(image),
          .size = image::PictureSize{info.ThumbWidth, info.ThumbHeight},
          .filters = run.project.ThumbnailFilters,
          .watermark = run.ThumbnailWatermark};
}

}  // namespace vantorium::generation
