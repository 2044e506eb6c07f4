#pragma once

#include <string>

namespace vantorium::image {

/// Returns the versions of the libraries that decide the bytes of a picture, besides its settings and this program:
/// those of the JPEG files and of the color profiles.
[[nodiscard]] std::string CodecVersions();

}  // namespace vantorium::image
