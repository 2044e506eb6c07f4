#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace vantorium::image {

/// Converts the pixels of one photograph from its color profile to sRGB, with Little CMS. May be used from several
/// threads at once.
class SRGBTransform {
 public:
  /// Returns the conversion for a picture of `channels` channels, 1 or 3, as the file stores them. Returns null if
  /// nothing is to be converted: no profile, a damaged one, one for another number of channels, or one that changes no
  /// channel by more than one step, as those of sRGB.
  [[nodiscard]] static std::unique_ptr<const SRGBTransform> For(const std::string& profile, int channels);

  virtual ~SRGBTransform() = default;

  /// Converts pixels of blue, green, red in place.
  virtual void Apply(std::uint8_t* bgr, std::size_t pixels) const = 0;
};

}  // namespace vantorium::image
