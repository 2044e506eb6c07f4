#include "image/jpeg/UsualFile.h"

namespace vantorium::image::jpeg {
namespace {

constexpr unsigned kMostStep = 255;

std::optional<Chroma> ChromaOf(const jpeg_decompress_struct& header) {
  const auto* component = header.comp_info;
  if (header.num_components == 1 && header.jpeg_color_space == JCS_GRAYSCALE) return Chroma::None;
  if (header.num_components != 3 || header.jpeg_color_space != JCS_YCbCr) return {};
  for (int i = 1; i < 3; ++i) {
    if (component[i].h_samp_factor != 1 || component[i].v_samp_factor != 1) return {};
  }
  const int across = component->h_samp_factor;
  const int down = component->v_samp_factor;
  if (across == 1 && down == 1) return Chroma::Full;
  // libjpeg-turbo does not smooth chroma of one or two columns.
  if (across != 2 || down > 2 || component[1].downsampled_width <= 2) return {};
  return down == 2 ? Chroma::HalfBoth : Chroma::HalfWidth;
}

bool TakeSteps(const jpeg_decompress_struct& header, int number, std::array<int, 64>& steps) {
  const JQUANT_TBL* table = number >= 0 && number < NUM_QUANT_TBLS ? header.quant_tbl_ptrs[number] : nullptr;
  if (table == nullptr) return false;
  // libjpeg-turbo stores them row by row.
  for (std::size_t k = 0; k < 64; ++k) {
    const unsigned step = table->quantval[kRowMajorPlace[k]];
    if (step > kMostStep) return false;
    steps[k] = static_cast<int>(step);
  }
  return true;
}

std::size_t MCUs(JDIMENSION pixels, std::size_t blocks) {
  return (std::size_t{pixels} + 8 * blocks - 1) / (8 * blocks);
}

}  // namespace

std::optional<UsualFile> TakeOver(const jpeg_decompress_struct& header) {
  if (header.arith_code != FALSE || header.data_precision != 8) return {};
  const auto chroma = ChromaOf(header);
  if (!chroma) return {};
  const bool halfWidth = *chroma == Chroma::HalfWidth || *chroma == Chroma::HalfBoth;
  const bool halfHeight = *chroma == Chroma::HalfBoth;
  const std::size_t across = halfWidth ? 2 : 1;
  const std::size_t down = halfHeight ? 2 : 1;
  const auto& last = header.comp_info[header.num_components - 1];
  UsualFile file = {{*chroma, {halfWidth, last.downsampled_width - 1}, {halfHeight, last.downsampled_height - 1}},
                    {MCUs(header.image_width, across), MCUs(header.image_height, down)},
                    {}};
  for (int i = 0; i < header.num_components; ++i) {
    const auto& info = header.comp_info[i];
    file.components.push_back(
        {Plane(file.grid, i == 0 ? across : 1, i == 0 ? down : 1), {}, info.width_in_blocks, info.height_in_blocks});
    if (!TakeSteps(header, info.quant_tbl_no, file.components.back().steps)) return {};
  }
  return file;
}

}  // namespace vantorium::image::jpeg
