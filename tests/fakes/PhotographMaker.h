#pragma once

#include "tests/fakes/JpegMaker.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace vantorium::fakes {

/// A segment of a JPEG file with its marker, 0xFF and `marker`, and its length.
[[nodiscard]] std::string JpegSegment(int marker, std::string_view contents);
/// The file with segments at its beginning, where cameras write them.
[[nodiscard]] std::string WithSegments(std::string jpeg, std::string_view segments);

/// The contents of an Exif segment with the orientation and some other tags, little-endian or big-endian.
[[nodiscard]] std::string ExifOf(int orientation, bool bigEndian = false);
/// The file with an Exif segment that has this orientation.
[[nodiscard]] std::string WithOrientation(std::string jpeg, int orientation);

enum class TestProfile { SRGB, DisplayP3, AdobeRGB, GrayGamma };
inline constexpr TestProfile kColorProfiles[] = {TestProfile::SRGB, TestProfile::DisplayP3, TestProfile::AdobeRGB};
/// The bytes of an ICC profile: of sRGB, with the primaries of Display P3 or Adobe RGB (1998), or gray with a gamma of
/// 1.2.
[[nodiscard]] std::string ProfileOf(TestProfile profile);
/// The profile as APP2 segments, each with at most `most` bytes of it.
[[nodiscard]] std::string ProfileSegments(std::string_view profile, std::size_t most = 60000);
[[nodiscard]] std::string WithProfile(std::string jpeg, std::string_view profile);

/// An sRGB pixel, converted to a profile's colors: red, green, blue.
[[nodiscard]] std::array<std::uint8_t, 3> InProfile(std::string_view profile, std::array<std::uint8_t, 3> sRGB);

/// Returns the pixels of a picture as they are stored so that `upright` is seen once the picture is turned. `width` and
/// `height` are those of the upright picture.
[[nodiscard]] JpegPixels StoredLying(const JpegPixels& upright, int orientation, int width, int height);

}  // namespace vantorium::fakes
