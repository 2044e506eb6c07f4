#include "image/jpeg/UsualFile.h"

#include <algorithm>
#include <span>

namespace vantorium::image::jpeg {
namespace {

constexpr unsigned kMostStep = 255;
constexpr unsigned kLargestDCSymbol = 15;

bool IsOneSequentialScan(const jpeg_decompress_struct& header) {
  if (header.progressive_mode != FALSE || header.arith_code != FALSE || header.data_precision != 8) return false;
  if (header.Ss != 0 || header.Se != 63 || header.Ah != 0 || header.Al != 0) return false;
  if (header.comps_in_scan != header.num_components) return false;
  for (int i = 0; i < header.num_components; ++i) {
    if (header.cur_comp_info[i] != header.comp_info + i) return false;
  }
  return true;
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
  // libjpeg-turbo does not smooth chroma of one or two columns.
  if (across != 2 || down > 2 || component[1].downsampled_width <= 2) return {};
  return down == 2 ? Chroma::HalfBoth : Chroma::HalfWidth;
}

template <typename Table>
const Table* TableAt(std::span<Table* const> tables, int number) {
  return number >= 0 && static_cast<std::size_t>(number) < tables.size() ? tables[static_cast<std::size_t>(number)]
                                                                         : nullptr;
}

bool TakeSteps(const JQUANT_TBL* table, std::array<int, 64>& steps) {
  if (table == nullptr) return false;
  // libjpeg-turbo stores them row by row.
  for (std::size_t k = 0; k < 64; ++k) {
    const unsigned step = table->quantval[kRowMajorPlace[k]];
    if (step > kMostStep) return false;
    steps[k] = static_cast<int>(step);
  }
  return true;
}

std::shared_ptr<const CodeTables> CodesOf(const JHUFF_TBL* dc, const JHUFF_TBL* ac) {
  HuffmanCode dcCode;
  HuffmanCode acCode;
  if (dc == nullptr || ac == nullptr || !dcCode.Set(*dc) || !acCode.Set(*ac)) return nullptr;
  if (dcCode.HasSymbolsAbove(kLargestDCSymbol)) return nullptr;
  return std::make_shared<const CodeTables>(CodeTables{ValueTable(dcCode), ValueTable(acCode), SkipTable(acCode)});
}

bool TakeTables(const jpeg_decompress_struct& header, int number, std::vector<ScanComponent>& components) {
  const auto& info = header.comp_info[number];
  ScanComponent& component = components.back();
  if (!TakeSteps(TableAt<JQUANT_TBL>(header.quant_tbl_ptrs, info.quant_tbl_no), component.steps)) return false;
  for (int i = 0; i < number && component.codes == nullptr; ++i) {
    const auto& other = header.comp_info[i];
    const bool same = other.dc_tbl_no == info.dc_tbl_no && other.ac_tbl_no == info.ac_tbl_no;
    if (same) component.codes = components[static_cast<std::size_t>(i)].codes;
  }
  if (component.codes == nullptr) {
    component.codes = CodesOf(TableAt<JHUFF_TBL>(header.dc_huff_tbl_ptrs, info.dc_tbl_no),
                              TableAt<JHUFF_TBL>(header.ac_huff_tbl_ptrs, info.ac_tbl_no));
  }
  return component.codes != nullptr;
}

std::size_t MCUs(JDIMENSION pixels, std::size_t blocks) {
  return (std::size_t{pixels} + 8 * blocks - 1) / (8 * blocks);
}

}  // namespace

std::optional<UsualFile> TakeOver(const jpeg_decompress_struct& header) {
  if (!IsOneSequentialScan(header)) return {};
  const auto chroma = ChromaOf(header);
  if (!chroma) return {};
  const bool halfWidth = *chroma == Chroma::HalfWidth || *chroma == Chroma::HalfBoth;
  const bool halfHeight = *chroma == Chroma::HalfBoth;
  const std::size_t across = halfWidth ? 2 : 1;
  const std::size_t down = halfHeight ? 2 : 1;
  const auto& last = header.comp_info[header.num_components - 1];
  UsualFile file = {*chroma,
                    {halfWidth, last.downsampled_width - 1},
                    {halfHeight, last.downsampled_height - 1},
                    {MCUs(header.image_width, across), MCUs(header.image_height, down)},
                    header.restart_interval,
                    {}};
  for (int i = 0; i < header.num_components; ++i) {
    file.components.push_back({Plane(file.grid, i == 0 ? across : 1, i == 0 ? down : 1), {}, {}});
    if (!TakeTables(header, i, file.components)) return {};
  }
  return file;
}

}  // namespace vantorium::image::jpeg
