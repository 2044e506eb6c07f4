#pragma once

#include "image/Corrections.h"
#include "image/Orientation.h"

#include <filesystem>
#include <string>

namespace vantorium::image {

/// What a JPEG file notes about its picture, in the segments in front of the picture.
struct PhotographNotes {
  Orientation orientation = Orientation::AsStored;
  std::string profile;  ///< the bytes of its ICC color profile; empty for none
  int channels = 0;     ///< that the file stores: 1 gray, 3 colors, 4 inks; read with the profile
};

/// Reads the notes that `corrections` need; the others keep their defaults, and so do missing and damaged ones. The
/// first Exif segment that says an orientation counts. Without corrections the file is not opened.
[[nodiscard]] PhotographNotes ReadPhotographNotes(const std::filesystem::path& file, Corrections corrections);

}  // namespace vantorium::image
