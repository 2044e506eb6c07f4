#pragma once

#include <string>

namespace vantorium {

/// One row of the image list. Its key, which keeps the names of a list apart, is "key_" + ImageName.
struct ImageEntry {
  std::string ImageName;
  std::string SourcePath;  ///< path text of the JPEG file
  std::string SizeKey;     ///< bytes of the file, 20 digits: a text sort is a sort by size
  std::string DateKey;     ///< UTC write time, "yyyymmdd hh:mm:ss": a text sort is a sort by time
  std::string ImageDescription;
  std::string ThumbnailDescription;
};

}  // namespace vantorium
