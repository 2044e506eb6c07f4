#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::fakes {

enum class JpegColours { Grey, YCbCr, RGB, CMYK, YCCK };

/// How a JPEG file is made.
struct JpegRecipe {
  int width = 37;
  int height = 29;
  JpegColours colours = JpegColours::YCbCr;
  int horizontal = 2;  ///< chroma is so many times coarser
  int vertical = 2;
  bool progressive = false;
  bool arithmetic = false;
  unsigned restartEvery = 0;  ///< blocks of pixels between restart markers; 0 is none
  int quality = 90;
  bool adobeMarker = true;  ///< in files of four inks; without it they are CMYK
  bool optimised = false;   ///< with Huffman codes of its own
  bool wideSteps = false;   ///< quantization steps may be above 255, as low qualities want them
};
std::ostream& operator<<(std::ostream& stream, const JpegRecipe& recipe);

/// One of each kind that the program has to read, in several sizes.
[[nodiscard]] std::vector<JpegRecipe> EveryKindOfJpeg();

/// The channels of a pixel from the left and the top: grey; red, green, blue; or four inks as the file holds them.
using JpegPixels = std::function<std::array<std::uint8_t, 4>(int x, int y)>;

/// The bytes of a file, of a drawn picture with smooth and rough parts or of the given pixels.
[[nodiscard]] std::string MakeJpeg(const JpegRecipe& recipe);
[[nodiscard]] std::string MakeJpeg(const JpegRecipe& recipe, const JpegPixels& pixels);

/// The library's own decoding of a file of one or three channels: rows from the top, red, green, blue.
[[nodiscard]] std::vector<std::uint8_t> DecodeToRGB(const std::string& jpeg);

/// Where the frame header's marker begins.
[[nodiscard]] std::size_t FrameHeaderOf(std::string_view jpeg);
/// Where the entropy-coded data of the first scan begin.
[[nodiscard]] std::size_t PictureDataOf(std::string_view jpeg);

/// The file with another size or precision in its header; the data stay.
[[nodiscard]] std::string ClaimingSize(std::string jpeg, int width, int height);
[[nodiscard]] std::string ClaimingPrecision(std::string jpeg, int bits);
/// The file with bytes put in.
[[nodiscard]] std::string WithBytesAt(std::string jpeg, std::size_t place, std::string_view bytes);

}  // namespace vantorium::fakes
