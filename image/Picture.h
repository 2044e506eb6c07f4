#pragma once

#include "image/CoefficientBudget.h"
#include "image/PictureRecipe.h"

#include <exception>
#include <filesystem>
#include <optional>
#include <stop_token>
#include <string>

namespace vantorium {

/// What is wanted of one photograph.
struct PictureRequest {
  std::optional<PictureRecipe> image;
  std::optional<PictureRecipe> thumbnail;
};

/// One output: the bytes of a JPEG file, or the RuntimeFailure that kept it from being made.
struct PictureFile {
  std::string jpeg;
  std::exception_ptr failure;

  /// The bytes. Throws the failure.
  [[nodiscard]] const std::string& Bytes() const;
};

/// The outputs of one photograph; those that were not wanted are empty.
struct PictureFiles {
  bool decoded = false;  ///< false: the source could not be decoded in whole, and there are no outputs
  PictureFile image;
  PictureFile thumbnail;
};

/// What the makers of pictures share: when to stop, and the memory for pictures in several scans.
struct PictureWork {
  std::stop_token stop;
  CoefficientBudget& budget;
};

/// Makes the wanted outputs of the JPEG file `source`, decoding it once and only the rows that an output needs. A pure
/// function: nothing is shown or written, and the same source and request give the same bytes on every thread. A stop
/// ends it early, with nothing decoded.
[[nodiscard]] PictureFiles MakePictures(const std::filesystem::path& source, const PictureRequest& request,
                                        const PictureWork& work);

}  // namespace vantorium
