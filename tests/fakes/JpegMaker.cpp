#include "tests/fakes/JpegMaker.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

namespace vantorium::fakes {
namespace {

int ChannelsOf(JpegColors colors) {
  return colors == JpegColors::Grey ? 1 : colors == JpegColors::CMYK || colors == JpegColors::YCCK ? 4 : 3;
}

void ChooseColors(jpeg_compress_struct& codec, JpegColors colors) {
  constexpr J_COLOR_SPACE kIn[] = {JCS_GRAYSCALE, JCS_RGB, JCS_RGB, JCS_CMYK, JCS_CMYK};
  constexpr J_COLOR_SPACE kInFile[] = {JCS_GRAYSCALE, JCS_YCbCr, JCS_RGB, JCS_CMYK, JCS_YCCK};
  codec.in_color_space = kIn[static_cast<int>(colors)];
  jpeg_set_defaults(&codec);
  jpeg_set_colorspace(&codec, kInFile[static_cast<int>(colors)]);
}

jpeg_scan_info ScanInfoOf(const JpegScan& scan) {
  jpeg_scan_info info = {.comps_in_scan = static_cast<int>(scan.channels.size()),
                         .component_index = {},
                         .Ss = scan.first,
                         .Se = scan.last,
                         .Ah = scan.knownFrom,
                         .Al = scan.lowest};
  std::ranges::copy(scan.channels, info.component_index);
  return info;
}

// Empty: libjpeg-turbo chooses the scans.
std::vector<jpeg_scan_info> ScansOf(const JpegRecipe& recipe, int channels) {
  std::vector<jpeg_scan_info> scans;
  for (int i = 0; recipe.scanPerChannel && i < channels; ++i) scans.push_back(ScanInfoOf({.channels = {i}}));
  for (const JpegScan& scan : recipe.scans) scans.push_back(ScanInfoOf(scan));
  return scans;
}

void Configure(jpeg_compress_struct& codec, const JpegRecipe& recipe) {
  codec.image_width = static_cast<JDIMENSION>(recipe.width);
  codec.image_height = static_cast<JDIMENSION>(recipe.height);
  codec.input_components = ChannelsOf(recipe.colors);
  ChooseColors(codec, recipe.colors);
  jpeg_set_quality(&codec, recipe.quality, recipe.wideSteps ? FALSE : TRUE);
  // Luminance and black are not subsampled.
  const bool sampled = recipe.colors == JpegColors::YCbCr || recipe.colors == JpegColors::YCCK;
  for (int i = 0; i < codec.num_components; ++i) {
    const bool fine = sampled && (i == 0 || i == 3);
    codec.comp_info[i].h_samp_factor = fine ? recipe.horizontal : 1;
    codec.comp_info[i].v_samp_factor = fine ? recipe.vertical : 1;
  }
  codec.restart_interval = recipe.restartEvery;
  codec.optimize_coding = recipe.optimised ? TRUE : FALSE;
  codec.arith_code = recipe.arithmetic ? TRUE : FALSE;
  if (recipe.progressive) jpeg_simple_progression(&codec);
  if (!recipe.adobeMarker) codec.write_Adobe_marker = FALSE;
}

std::array<std::uint8_t, 4> DrawnPixel(int x, int y) {
  const unsigned rough = (static_cast<unsigned>(x) * 2654435761U) ^ (static_cast<unsigned>(y) * 40503U * 65537U);
  const unsigned speck = x % 16 < 5 ? (rough >> 24) & 63 : 0;
  const auto channel = [&](int value) {
    return static_cast<std::uint8_t>((static_cast<unsigned>(value) & 127) + speck);
  };
  return {channel(40 + x), channel(20 + 2 * y), channel(x + y), channel(90 - y)};
}

unsigned ByteAt(std::string_view jpeg, std::size_t place) {
  return static_cast<unsigned char>(jpeg.at(place));
}

// Finds the first segment whose marker `wanted` accepts.
template <typename Wanted>
std::size_t SegmentOf(std::string_view jpeg, Wanted wanted) {
  std::size_t place = 2;
  while (!wanted(ByteAt(jpeg, place + 1))) place += 2 + ByteAt(jpeg, place + 2) * 256 + ByteAt(jpeg, place + 3);
  return place;
}

void Put16(std::string& jpeg, std::size_t place, int value) {
  jpeg.at(place) = static_cast<char>(value >> 8);
  jpeg.at(place + 1) = static_cast<char>(value & 255);
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const JpegRecipe& recipe) {
  constexpr const char* kNames[] = {"grey", "YCbCr", "RGB", "CMYK", "YCCK"};
  return stream << recipe.width << " x " << recipe.height << " " << kNames[static_cast<int>(recipe.colors)] << " "
                << recipe.horizontal << "x" << recipe.vertical << (recipe.progressive ? " progressive" : "")
                << (recipe.scanPerChannel ? " a scan per channel" : "") << (recipe.arithmetic ? " arithmetic" : "")
                << " restart " << recipe.restartEvery << " quality " << recipe.quality
                << (recipe.adobeMarker ? "" : " no Adobe marker");
}

std::vector<JpegRecipe> EveryKindOfJpeg() {
  std::vector<JpegRecipe> kinds;
  constexpr std::array<std::array<int, 2>, 9> kSizes = {
      {{1, 1}, {1, 40}, {40, 1}, {2, 3}, {8, 8}, {16, 16}, {17, 33}, {61, 47}, {130, 99}}};
  constexpr std::array<std::array<int, 2>, 10> kSamplings = {
      {{1, 1}, {2, 1}, {1, 2}, {2, 2}, {4, 1}, {4, 2}, {1, 4}, {2, 4}, {3, 1}, {1, 3}}};
  for (const auto& [width, height] : kSizes) {
    for (const bool progressive : {false, true}) {
      for (const unsigned restart : {0U, 3U}) {
        JpegRecipe recipe = {.width = width, .height = height, .progressive = progressive, .restartEvery = restart};
        for (const auto& [horizontal, vertical] : kSamplings) {
          recipe.horizontal = horizontal;
          recipe.vertical = vertical;
          kinds.push_back(recipe);
        }
        for (const auto colors : {JpegColors::Grey, JpegColors::RGB, JpegColors::CMYK, JpegColors::YCCK}) {
          recipe.colors = colors;
          recipe.horizontal = recipe.vertical = 2;
          kinds.push_back(recipe);
        }
      }
    }
  }
  kinds.push_back({.width = 50, .height = 60, .arithmetic = true});
  kinds.push_back({.width = 50, .height = 60, .progressive = true, .arithmetic = true});
  return kinds;
}

std::string MakeJpeg(const JpegRecipe& recipe) {
  return MakeJpeg(recipe, DrawnPixel);
}

std::string MakeJpeg(const JpegRecipe& recipe, const JpegPixels& pixels) {
  jpeg_error_mgr errors = {};
  jpeg_compress_struct codec = {};
  codec.err = jpeg_std_error(&errors);
  errors.emit_message = [](j_common_ptr, int) {};
  jpeg_create_compress(&codec);
  unsigned char* bytes = nullptr;
  unsigned long size = 0;
  jpeg_mem_dest(&codec, &bytes, &size);
  Configure(codec, recipe);
  const auto scans = ScansOf(recipe, codec.num_components);
  if (!scans.empty()) {
    codec.scan_info = scans.data();
    codec.num_scans = static_cast<int>(scans.size());
  }
  jpeg_start_compress(&codec, TRUE);
  const auto channels = static_cast<std::size_t>(codec.input_components);
  for (int y = 0; y < recipe.height; ++y) {
    std::vector<std::uint8_t> row;
    for (int x = 0; x < recipe.width; ++x) {
      const auto pixel = pixels(x, y);
      row.insert(row.end(), pixel.begin(), pixel.begin() + static_cast<std::ptrdiff_t>(channels));
    }
    JSAMPROW data = row.data();
    jpeg_write_scanlines(&codec, &data, 1);
  }
  jpeg_finish_compress(&codec);
  jpeg_destroy_compress(&codec);
  std::string result(reinterpret_cast<const char*>(bytes), size);
  std::free(bytes);
  return result;
}

std::vector<std::uint8_t> DecodeToRGB(const std::string& jpeg) {
  jpeg_error_mgr errors = {};
  jpeg_decompress_struct codec = {};
  codec.err = jpeg_std_error(&errors);
  jpeg_create_decompress(&codec);
  jpeg_mem_src(&codec, reinterpret_cast<const unsigned char*>(jpeg.data()), jpeg.size());
  jpeg_read_header(&codec, TRUE);
  codec.out_color_space = JCS_RGB;
  jpeg_start_decompress(&codec);
  const std::size_t rowBytes = std::size_t{codec.output_width} * 3;
  std::vector<std::uint8_t> rgb(rowBytes * codec.output_height);
  while (codec.output_scanline < codec.output_height) {
    JSAMPROW row = rgb.data() + rowBytes * codec.output_scanline;
    jpeg_read_scanlines(&codec, &row, 1);
  }
  jpeg_destroy_decompress(&codec);
  return rgb;
}

std::size_t FrameHeaderOf(std::string_view jpeg) {
  return SegmentOf(jpeg, [](unsigned marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
  });
}

std::size_t PictureDataOf(std::string_view jpeg) {
  const std::size_t scan = SegmentOf(jpeg, [](unsigned marker) { return marker == 0xDA; });
  return scan + 2 + ByteAt(jpeg, scan + 2) * 256 + ByteAt(jpeg, scan + 3);
}

std::string ClaimingSize(std::string jpeg, int width, int height) {
  const std::size_t frame = FrameHeaderOf(jpeg);
  Put16(jpeg, frame + 5, height);
  Put16(jpeg, frame + 7, width);
  return jpeg;
}

std::string ClaimingPrecision(std::string jpeg, int bits) {
  jpeg.at(FrameHeaderOf(jpeg) + 4) = static_cast<char>(bits);
  return jpeg;
}

std::string WithBytesAt(std::string jpeg, std::size_t place, std::string_view bytes) {
  return jpeg.insert(place, bytes);
}

}  // namespace vantorium::fakes
