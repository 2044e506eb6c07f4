#include "image/CodecVersions.h"

#include <cstdio>

#include <jpeglib.h>
#include <lcms2.h>

namespace vantorium::image {

std::string CodecVersions() {
  return "jpeg " + std::to_string(LIBJPEG_TURBO_VERSION_NUMBER) + " lcms " +
         std::to_string(::cmsGetEncodedCMMversion());
}

}  // namespace vantorium::image
