#pragma once

#include "image/JPEGEncoder.h"
#include "image/PictureRecipe.h"
#include "image/SRGBTransform.h"
#include "image/cDIBSection.h"

#include <memory>
#include <string>

namespace vantorium::image {

/// One output of a photograph, made from the rows of its source as they arrive, from the top of the picture down. Each
/// row is finished and encoded before the next one is made, so no size needs memory for more than a few rows. Any call
/// may throw RuntimeFailure InvalidArgument for a size below 1 x 1, JPEGLibrary if the picture cannot be encoded, and
/// whatever the watermark and the filters throw. A refused size allocates no memory.
class PictureOutput {
 public:
  /// `source` is the size of the photograph, upright if it is turned. `colors`, if not null, converts what it shows and
  /// must outlive this object.
  PictureOutput(const PictureRecipe& recipe, PictureSize source, const SRGBTransform* colors = nullptr);

  /// Marks the pixels of the source that are needed.
  void MarkSource(WantedPixels& pixels) const { plan_.MarkSource(pixels); }
  /// Returns the next source row needed, counted from the bottom; -1 when the output is complete.
  [[nodiscard]] std::int32_t NextSourceRow() const;
  /// Takes source row `row`, 3 bytes per pixel, and the row above it, which is read only if it was needed too.
  void TakeSourceRow(std::int32_t row, const std::uint8_t* bytes, const std::uint8_t* above);
  /// Returns the bytes of the JPEG file. Call once, when NextSourceRow is -1.
  [[nodiscard]] std::string Finish();

 private:
  PictureOutput(const PictureRecipe& recipe, PictureSize source, PictureSize size, const SRGBTransform* colors);

  void BeginRow();
  void FinishRow();

  PictureRecipe recipe_;
  const SRGBTransform* colors_;
  std::shared_ptr<const TextMask> mask_;  // the watermark's, if there is one
  JPEGEncoder encoder_;
  ResamplePlan plan_;
  std::int32_t newRow_;                 // the current new row, counted from the bottom
  std::int32_t lastSeen_;               // the last source row taken
  ResamplePlan::SourceRows rows_ = {};  // the source rows of the new row
  cDIBSection row_;                     // the new row before it is encoded
};

}  // namespace vantorium::image
