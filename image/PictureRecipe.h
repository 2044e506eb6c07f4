#pragma once

#include "image/ImageFilterSettings.h"
#include "image/ResamplePlan.h"
#include "image/Watermark.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace vantorium::image {

/// How one output of a photograph is made, in this order: resize, convert the colors if asked for, filter, draw the
/// watermark, encode as JPEG at the filters' quality.
struct PictureRecipe {
  std::uint64_t noiseNumber = 0;         ///< gives each picture of a run its own noise
  std::optional<PictureSize> size = {};  ///< of the output; nullopt keeps the source's
  ImageFilterSettings filters = {};
  std::shared_ptr<const WatermarkPainter> watermark = {};  ///< null for none
};

}  // namespace vantorium::image
