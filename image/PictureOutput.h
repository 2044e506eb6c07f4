#pragma once

#include "image/JPEGEncoder.h"
#include "image/PictureRecipe.h"
#include "image/cDIBSection.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorium {

/// One output of a photograph, made of the rows of its source as they come, from the top of the picture down. Rows go
/// straight into the file where no operation needs the whole output. Each call may throw RuntimeFailure InvalidArgument
/// for a size below 1 x 1 or one that there is no memory for, JPEGLibrary when the picture can't be encoded, and what
/// the watermark throws.
class PictureOutput {
 public:
  PictureOutput(const PictureRecipe& recipe, PictureSize source);

  /// Marks the pixels of the source that are needed.
  void MarkSource(WantedPixels& pixels) const { plan_.MarkSource(pixels); }
  /// The next source row that is needed, counted from the bottom; -1 when the output is complete.
  [[nodiscard]] std::int32_t NextSourceRow() const;
  /// Source row `row`, 3 bytes a pixel, and the row above it, which is looked at only when it was asked for too.
  void TakeSourceRow(std::int32_t row, const std::uint8_t* bytes, const std::uint8_t* above);
  /// The bytes of the JPEG file, once NextSourceRow is -1. To be called once.
  [[nodiscard]] std::string Finish();

 private:
  [[nodiscard]] bool NeedsWholePicture() const;
  void BeginRow();
  void WriteEncodedRow();

  PictureRecipe recipe_;
  ResamplePlan plan_;
  std::int32_t newRow_;                   // the new row under way, from the bottom
  std::int32_t lastSeen_;                 // the last source row that came
  ResamplePlan::SourceRows rows_ = {};    // of the new row
  cDIBSection whole_;                     // where an operation needs the whole output
  std::unique_ptr<JPEGEncoder> encoder_;  // where none does
  std::shared_ptr<const TextMask> mask_;  // of the watermark, if there is one
  std::vector<std::uint8_t> encodedRow_;  // the new row on its way to the encoder
};

}  // namespace vantorium
