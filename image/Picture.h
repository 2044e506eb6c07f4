#pragma once

#include "image/CoefficientBudget.h"
#include "image/Corrections.h"
#include "image/PictureRecipe.h"

#include <exception>
#include <filesystem>
#include <optional>
#include <stop_token>
#include <string>

namespace vantorium::image {

/// The outputs requested of one photograph.
struct PictureRequest {
  std::optional<PictureRecipe> image;
  std::optional<PictureRecipe> thumbnail;
  Corrections corrections = {};  ///< of the photograph, for both outputs
};

/// One output: the bytes of a JPEG file, or the RuntimeFailure that prevented it.
struct PictureFile {
  std::string jpeg;
  std::exception_ptr failure;

  /// Returns the bytes, or throws the failure.
  [[nodiscard]] const std::string& Bytes() const;
};

/// The outputs of one photograph; those not requested are empty.
struct PictureFiles {
  bool decoded = false;  ///< false: the source could not be decoded completely, and there are no outputs
  PictureFile image;
  PictureFile thumbnail;
};

/// What the workers of a run share: the stop token, and the memory budget for pictures that
/// must be held.
struct PictureWork {
  std::stop_token stop;
  CoefficientBudget& budget;
};

/// Makes the requested outputs from the JPEG file `source`, decoding it once and only the rows that an output needs. A
/// photograph that must be turned by more than a mirror from left to right is held in memory, but only the pixels that
/// an output needs. A pure function: it shows and writes nothing, and the same source and request give the same bytes
/// on every thread. A stop request ends it early, with `decoded` false.
[[nodiscard]] PictureFiles MakePictures(const std::filesystem::path& source, const PictureRequest& request,
                                        const PictureWork& work);

}  // namespace vantorium::image
