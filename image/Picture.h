#pragma once

#include "image/ImageFilterSettings.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace vantorium {

struct PixelSize {
  std::int32_t width = 0;
  std::int32_t height = 0;
};

/// What is made of one photograph for one of its outputs, in this order: the size, the filters, the JPEG file at the
/// filters' quality.
struct PictureRecipe {
  std::uint64_t noiseNumber = 0;       ///< tells the noise of the pictures of a run apart
  std::optional<PixelSize> size = {};  ///< pixels of the output; nothing keeps the source's
  ImageFilterSettings filters = {};
};

/// Makes one output of the JPEG file `source` and returns the bytes of a JPEG file. A pure function: nothing is shown
/// or written, and the same source and recipe give the same bytes on every thread. Nothing when the source can't be
/// decoded. Throws RuntimeFailure InvalidArgument for a size below 1 x 1 and JPEGLibrary when the picture can't be
/// encoded.
[[nodiscard]] std::optional<std::string> MakePicture(const std::filesystem::path& source, const PictureRecipe& recipe);

}  // namespace vantorium
