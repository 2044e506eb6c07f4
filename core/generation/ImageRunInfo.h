#pragma once

#include "env/CivilTime.h"

#include <cstdint>
#include <string>

namespace vantorium::generation {

/// What a run knows about one image in addition to its ImageEntry. Sizes are in pixels.
struct ImageRunInfo {
  std::int32_t Number = 0;              ///< of the image, from 1
  std::string Path{};                   ///< path text of the source file
  std::string FileName{};               ///< name of the output file
  vantorium::env::FileTime FileTime{};  ///< last write time of the source file
  std::int32_t Width = 0;
  std::int32_t Height = 0;
  std::int32_t ThumbWidth = 0;
  std::int32_t ThumbHeight = 0;
  std::string FileSize = "0KB";  ///< size of the output image as text, once known
  std::string ThumbFileSize = "0KB";
};

}  // namespace vantorium::generation
