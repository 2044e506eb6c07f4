#pragma once

#include "image/ImageFilterSettings.h"
#include "image/ResamplePlan.h"
#include "image/Watermark.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace vantorium {

/// What is made of one photograph for one of its outputs, in this order: the size, the filters, the watermark, the
/// JPEG file at the filters' quality.
struct PictureRecipe {
  std::uint64_t noiseNumber = 0;         ///< tells the noise of the pictures of a run apart
  std::optional<PictureSize> size = {};  ///< of the output; nothing keeps the source's
  ImageFilterSettings filters = {};
  std::shared_ptr<const WatermarkPainter> watermark = {};  ///< nothing for none
};

}  // namespace vantorium
