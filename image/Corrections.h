#pragma once

namespace vantorium::image {

/// What is corrected in a photograph before a picture is made of it.
struct Corrections {
  bool upright = false;     ///< turn it as its Exif orientation says
  bool trueColors = false;  ///< convert its colors from its own color profile to sRGB

  [[nodiscard]] bool Any() const { return upright || trueColors; }
};

}  // namespace vantorium::image
