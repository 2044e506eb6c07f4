#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::fakes {

enum class JpegColors { Grey, YCbCr, RGB, CMYK, YCCK };

/// A scan of a progressive file. `knownFrom` and `lowest` are bits of the coefficients: the lowest one that earlier
/// scans had, or 0, and the lowest one in this scan.
struct JpegScan {
  std::vector<int> channels = {};
  int first = 0;
  int last = 63;
  int knownFrom = 0;
  int lowest = 0;
};

/// The properties of a JPEG file to be made.
struct JpegRecipe {
  int width = 37;
  int height = 29;
  JpegColors colors = JpegColors::YCbCr;
  int horizontal = 2;  ///< chroma subsampling factor
  int vertical = 2;
  bool progressive = false;
  bool scanPerChannel = false;       ///< one scan for each channel
  std::vector<JpegScan> scans = {};  ///< instead of the usual ones of a progressive file
  bool arithmetic = false;
  unsigned restartEvery = 0;  ///< number of MCUs between restart markers; 0: no markers
  int quality = 90;
  bool adobeMarker = true;  ///< whether a file has the Adobe marker; four inks without it are CMYK
  bool optimised = false;   ///< whether the Huffman codes are computed for this file
  bool wideSteps = false;   ///< whether quantization steps may exceed 255
};
std::ostream& operator<<(std::ostream& stream, const JpegRecipe& recipe);

/// One recipe for each kind of file that the program has to read, in several sizes.
[[nodiscard]] std::vector<JpegRecipe> EveryKindOfJpeg();

/// The channels of the pixel at (x, y) from the top left: gray; red, green, blue; or four inks as stored in the file.
using JpegPixels = std::function<std::array<std::uint8_t, 4>(int x, int y)>;

/// The bytes of a file with a synthetic picture, which has smooth and rough parts, or with the given pixels.
[[nodiscard]] std::string MakeJpeg(const JpegRecipe& recipe);
[[nodiscard]] std::string MakeJpeg(const JpegRecipe& recipe, const JpegPixels& pixels);

/// Decodes a file of one or three channels with libjpeg-turbo alone: rows from the top, red, green, blue.
[[nodiscard]] std::vector<std::uint8_t> DecodeToRGB(const std::string& jpeg);

/// The offset of the frame header's marker.
[[nodiscard]] std::size_t FrameHeaderOf(std::string_view jpeg);
/// The offset of the first scan's entropy-coded data.
[[nodiscard]] std::size_t PictureDataOf(std::string_view jpeg);

/// The file with another size or precision in its header and the same data.
[[nodiscard]] std::string ClaimingSize(std::string jpeg, int width, int height);
[[nodiscard]] std::string ClaimingPrecision(std::string jpeg, int bits);
/// The file with `bytes` inserted at `place`.
[[nodiscard]] std::string WithBytesAt(std::string jpeg, std::size_t place, std::string_view bytes);

}  // namespace vantorium::fakes
