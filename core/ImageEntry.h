#pragma once

#include <string>

namespace vantorium::core {

/// One row of the image list. Its key, which is unique in a list, is "key_" + ImageName.
struct ImageEntry {
  std::string ImageName;
  std::string SourcePath;  ///< path text of the JPEG file
  std::string SizeKey;     ///< bytes of the file, 20 digits: text order is order by size
  std::string DateKey;     ///< UTC write time, "yyyymmdd hh:mm:ss": text order is order by time
  std::string ImageDescription;
  std::string ThumbnailDescription;
};

}  // namespace vantorium::core
