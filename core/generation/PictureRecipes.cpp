#include "core/generation/PictureRecipes.h"

namespace vantorium {

namespace {

// Each output of a run has noise of its own.
std::uint64_t NoiseOfImage(std::int32_t image) { return 2 * static_cast<std::uint64_t>(image); }
std::uint64_t NoiseOfThumbnail(std::int32_t image) { return NoiseOfImage(image) + 1; }

}  // namespace

std::optional<PictureRecipe> ImageRecipe(const RunState& run, std::int32_t image) {
  const GalleryProject& project = run.project;
  const bool resized = project.checkImageWrapperImageKeepSize == 0 && project.checkImageWrapperImagePhysicalResize == 1;
  const bool marked = project.ImageWatermark.checkUseWatermark == 1;
  if (!resized && !project.ImageFilters.AnyFilter() && !marked) return std::nullopt;
  PictureRecipe recipe{.noiseNumber = NoiseOfImage(image), .filters = project.ImageFilters};
  const ImageRunInfo& info = run.Info(image);
  if (resized) recipe.size = PixelSize{info.Width, info.Height};
  return recipe;
}

PictureRecipe ThumbnailRecipe(const RunState& run, std::int32_t image) {
  const ImageRunInfo& info = run.Info(image);
  return {.noiseNumber = NoiseOfThumbnail(image),
          .size = PixelSize{info.ThumbWidth, info.ThumbHeight},
          .filters = run.project.ThumbnailFilters};
}

}  // namespace vantorium
