#pragma once

#include "image/JPEGEncoder.h"
#include "image/PictureRecipe.h"
#include "image/cDIBSection.h"

#include <memory>
#include <string>

namespace vantorium {

/// One output of a photograph, made of the rows of its source as they come, from the top of the picture down. Each row
/// is finished and goes into the file before the next one is made, so that no size needs more memory than a few rows.
/// Each call may throw RuntimeFailure InvalidArgument for a size below 1 x 1, JPEGLibrary when the picture can't be
/// encoded, and what the watermark and the filters throw. A size that is refused takes no memory.
class PictureOutput {
 public:
  PictureOutput(const PictureRecipe& recipe, PictureSize source);

  /// The next source row that is needed, counted from the bottom; -1 when the output is complete.
  [[nodiscard]] std::int32_t NextSourceRow() const;
  /// Source row `row`, 3 bytes a pixel, and the row above it, which is looked at only when it was asked for too.
  void TakeSourceRow(std::int32_t row, const std::uint8_t* bytes, const std::uint8_t* above);
  /// The bytes of the JPEG file, once NextSourceRow is -1. To be called once.
  [[nodiscard]] std::string Finish();

 private:
  PictureOutput(const PictureRecipe& recipe, PictureSize source, PictureSize size);

  void BeginRow();
  void FinishRow();

  PictureRecipe recipe_;
  std::shared_ptr<const TextMask> mask_;  // of the watermark, if there is one
  JPEGEncoder encoder_;
  ResamplePlan plan_;
  std::int32_t newRow_;                 // the new row under way, from the bottom
  std::int32_t lastSeen_;               // the last source row that came
  ResamplePlan::SourceRows rows_ = {};  // of the new row
  cDIBSection row_;                     // the new row on its way to the encoder
};

}  // namespace vantorium
