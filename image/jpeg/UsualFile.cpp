#include "image/jpeg/UsualFile.h"

#include <algorithm>
#include <span>

namespace vantorium::image::jpeg {
namespace {

constexpr unsigned kMostStep = 255;
constexpr unsigned kLargestFirstSymbol = 15;

bool IsOneSequentialScan(const jpeg_decompress_struct& header) {
  if (header.progressive_mode != FALSE || header.arith_code != FALSE || header.data_precision != 8) return false;
  if (header.Ss != 0 || header.Se != 63 || header.Ah != 0 || header.Al != 0) return false;
  if (header.comps_in_scan != header.num_components) return false;
  for (int i = 0; i < header.num_components; ++i) {
    if (header.cur_comp_info[i] != header.comp_info + i) return false;
  }
  return true;
}

// The library repeats chroma that is two samples wide or less.
bool IsSmoothed(const jpeg_component_info& chroma) {
  return chroma.downsampled_width > 2;
}

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
  if (across != 2 || down > 2 || !IsSmoothed(component[1])) return {};
  return down == 2 ? Chroma::HalfBoth : Chroma::HalfWidth;
}

template <typename Table>
const Table* TableAt(std::span<Table* const> tables, int number) {
  return number >= 0 && static_cast<std::size_t>(number) < tables.size() ? tables[static_cast<std::size_t>(number)]
                                                                         : nullptr;
}

bool TakeSteps(const JQUANT_TBL* table, std::array<int, 64>& steps) {
  if (table == nullptr) return false;
  // The library keeps them in the order of rows.
  for (std::size_t k = 0; k < 64; ++k) {
    const unsigned step = table->quantval[kRowMajorPlace[k]];
    if (step > kMostStep) return false;
    steps[k] = static_cast<int>(step);
  }
  return true;
}

bool TakeCodes(const JHUFF_TBL* first, const JHUFF_TBL* others, ScanComponent& component) {
  HuffmanCode firstCode;
  HuffmanCode otherCode;
  if (first == nullptr || others == nullptr || !firstCode.Set(*first) || !otherCode.Set(*others)) return false;
  if (firstCode.HasSymbolsAbove(kLargestFirstSymbol)) return false;
  component.first = std::make_shared<ValueTable>(firstCode);
  component.others = std::make_shared<ValueTable>(otherCode);
  component.skipped = std::make_shared<SkipTable>(otherCode);
  return true;
}

// The components share their tables as those of the file do.
bool TakeTables(const jpeg_decompress_struct& header, int number, std::vector<ScanComponent>& components) {
  const auto& info = header.comp_info[number];
  ScanComponent& component = components.back();
  if (!TakeSteps(TableAt<JQUANT_TBL>(header.quant_tbl_ptrs, info.quant_tbl_no), component.steps)) return false;
  for (int i = 0; i < number; ++i) {
    const auto& other = header.comp_info[i];
    if (other.dc_tbl_no != info.dc_tbl_no || other.ac_tbl_no != info.ac_tbl_no) continue;
    const ScanComponent& twin = components[static_cast<std::size_t>(i)];
    component.first = twin.first;
    component.others = twin.others;
    component.skipped = twin.skipped;
    return true;
  }
  return TakeCodes(TableAt<JHUFF_TBL>(header.dc_huff_tbl_ptrs, info.dc_tbl_no),
                   TableAt<JHUFF_TBL>(header.ac_huff_tbl_ptrs, info.ac_tbl_no), component);
}

std::size_t Groups(JDIMENSION pixels, std::size_t blocks) {
  return (std::size_t{pixels} + 8 * blocks - 1) / (8 * blocks);
}

}  // namespace

std::optional<UsualFile> TakeOver(const jpeg_decompress_struct& header) {
  if (!IsOneSequentialScan(header)) return {};
  const auto chroma = ChromaOf(header);
  if (!chroma) return {};
  const std::size_t across = *chroma >= Chroma::HalfWidth ? 2 : 1;
  const std::size_t down = *chroma == Chroma::HalfBoth ? 2 : 1;
  const auto& last = header.comp_info[header.num_components - 1];
  UsualFile file = {*chroma,
                    {Groups(header.image_width, across), Groups(header.image_height, down)},
                    last.downsampled_width - 1,
                    last.downsampled_height - 1,
                    header.restart_interval,
                    {}};
  for (int i = 0; i < header.num_components; ++i) {
    file.components.push_back({Plane(file.grid, i == 0 ? across : 1, i == 0 ? down : 1), {}, {}, {}, {}});
    if (!TakeTables(header, i, file.components)) return {};
  }
  return file;
}

}  // namespace vantorium::image::jpeg
