#pragma once

#include <cstdint>

namespace vantorium::image {

/// The filters of one target (images or thumbnails) and the JPEG quality of its files. Switches are 0 or 1.
struct ImageFilterSettings {
  std::int16_t checkGrayscale = 0;
  std::int16_t checkBrightness = 0;
  std::int16_t sliderBrightness = 25;  ///< -100 to 100
  std::int16_t checkFade = 0;
  std::int16_t sliderFade = 192;  ///< 0 to 255
  std::int16_t checkNoise = 0;
  std::int16_t sliderNoise = 50;      ///< 0 to 100
  std::int16_t checkNoiseRandom = 0;  ///< random (1) or uniform (0) noise
  std::int16_t sliderQuality = 85;    ///< JPEG quality, 1 to 100; used whether or not any filter is on

  [[nodiscard]] bool AnyFilter() const {
    return checkGrayscale == 1 || checkBrightness == 1 || checkFade == 1 || checkNoise == 1;
  }
};

}  // namespace vantorium::image
