#include "core/generation/PictureRecipes.h"

namespace vantorium {

namespace {

// Each output of a run has its own noise.
std::uint64_t NoiseOfImage(std::int32_t image) {
  return 2 * static_cast<std::uint64_t>(image);
}
std::uint64_t NoiseOfThumbnail(std::int32_t image) {
  return NoiseOfImage(image) + 1;
}

std::shared_ptr<const WatermarkPainter> PainterOf(const WatermarkSettings& settings, const Screen& screen,
                                                  const TextRaster& texts) {
  if (!IsOn(settings.checkUseWatermark)) return nullptr;
  return std::make_shared<const WatermarkPainter>(settings, screen.PixelsPerInch(), texts);
}

}  // namespace

void PrepareWatermarks(RunState& run, const Screen& screen, const TextRaster& texts) {
  run.ImageWatermark = PainterOf(run.project.ImageWatermark, screen, texts);
  run.ThumbnailWatermark = PainterOf(run.project.ThumbnailWatermark, screen, texts);
}

std::optional<PictureRecipe> ImageRecipe(const RunState& run, std::int32_t image) {
  const GalleryProject& project = run.project;
  const bool resized =
      IsOff(project.checkImageWrapperImageKeepSize) && IsOn(project.checkImageWrapperImagePhysicalResize);
  if (!resized && !project.ImageFilters.AnyFilter() && !run.ImageWatermark) return std::nullopt;
  PictureRecipe recipe{
      .noiseNumber = NoiseOfImage(image), .filters = project.ImageFilters, .watermark = run.ImageWatermark};
  const ImageRunInfo& info = run.Info(image);
  if (resized) recipe.size = PictureSize{info.Width, info.Height};
  return recipe;
}

PictureRecipe ThumbnailRecipe(const RunState& run, std::int32_t image) {
  const ImageRunInfo& info = run.Info(image);
  return {.noiseNumber = NoiseOfThumbnail(image),
          .size = PictureSize{info.ThumbWidth, info.ThumbHeight},
          .filters = run.project.ThumbnailFilters,
          .watermark = run.ThumbnailWatermark};
}

}  // namespace vantorium
