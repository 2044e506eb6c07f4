#include "image/jpeg/SequentialScan.h"

#include "image/jpeg/HuffmanSlots.h"
#include "image/jpeg/Markers.h"

#include <map>
#include <utility>

namespace vantorium::image::jpeg {
namespace {

bool IsOneSequentialScan(const jpeg_decompress_struct& header) {
  if (header.progressive_mode != FALSE) return false;
  if (header.Ss != 0 || header.Se != 63 || header.Ah != 0 || header.Al != 0) return false;
  if (header.comps_in_scan != header.num_components) return false;
  for (int i = 0; i < header.num_components; ++i) {
    if (header.cur_comp_info[i] != header.comp_info + i) return false;
  }
  return true;
}

std::shared_ptr<const CodeTables> CodesOf(const jpeg_component_info& info, const HuffmanSlots& slots) {
  const auto dc = slots.DC(static_cast<unsigned>(info.dc_tbl_no));
  const auto ac = slots.AC(static_cast<unsigned>(info.ac_tbl_no));
  if (!dc || !ac || ac->EndsBlocks()) return nullptr;
  return std::make_shared<const CodeTables>(CodeTables{ValueTable(*dc), ValueTable(*ac), SkipTable(*ac)});
}

bool ReadDC(BitWindow& window, SequentialComponent& component) {
  window.Refill();
  const Symbol symbol = component.codes->dc.Read(window);
  window.Drop(symbol.length);
  component.prediction += static_cast<unsigned>(symbol.value);
  return symbol.move != kBadCode;
}

// A local copy of the window stays in registers.
bool SkipBlock(BitWindow& shared, SequentialComponent& component) {
  BitWindow window = shared;
  if (!ReadDC(window, component)) return false;
  const unsigned k = component.codes->acSkip.Skip(window);
  shared = window;
  return EndsWell(k);
}

// Returns the sum of the absolute coefficients, or more than kMostSum if the block is invalid.
int ReadBlock(BitWindow& shared, SequentialComponent& component, Block& block) {
  BitWindow window = shared;
  if (!ReadDC(window, component)) return kMostSum + 1;
  Clear(block);
  int sum = Put(block, 0, static_cast<std::int16_t>(component.prediction) * component.steps[0]);
  unsigned k = 0;
  component.codes->ac.ReadWhile(window, [&](const Symbol& symbol) {
    k += symbol.move;
    if (k <= kLastPlace) sum += Put(block, k, symbol.value * component.steps[k]);
    return k < kLastPlace;
  });
  shared = window;
  return EndsWell(k) ? sum : kMostSum + 1;
}

}  // namespace

/// The blocks at one position within the MCUs of a row.
struct SequentialScan::Lane {
  SequentialComponent* component;
  const std::uint8_t* wanted;  // the mark of the first MCU's block
  std::uint8_t* samples;
  std::size_t step;  // in blocks, from one MCU to the next
  std::size_t stride;
  unsigned rows;

  [[nodiscard]] bool Pass(BitWindow& window, std::size_t mcu) const {
    if (rows == 0 || wanted[mcu * step] == 0) return SkipBlock(window, *component);
    Block block;
    const int sum = ReadBlock(window, *component, block);
    return TransformIfTame(block, sum, rows, samples + mcu * step * 8, stride);
  }
};

std::unique_ptr<SequentialScan> SequentialScan::For(const jpeg_decompress_struct& header, UsualFile file,
                                                    SegmentReader reader) {
  if (!IsOneSequentialScan(header)) return nullptr;
  const HuffmanSlots slots(header);
  std::map<std::pair<int, int>, std::shared_ptr<const CodeTables>> tables;
  std::vector<SequentialComponent> components;
  for (Component& component : file.components) {
    const jpeg_component_info& info = header.comp_info[components.size()];
    auto& codes = tables[{info.dc_tbl_no, info.ac_tbl_no}];
    if (codes == nullptr) codes = CodesOf(info, slots);
    if (codes == nullptr) return nullptr;
    components.push_back({std::move(component), codes});
  }
  return std::make_unique<SequentialScan>(std::move(reader), file.grid, std::move(components));
}

SequentialScan::SequentialScan(SegmentReader reader, MCUGrid grid, std::vector<SequentialComponent> components)
    : reader_(std::move(reader)), grid_(grid), components_(std::move(components)), window_(reader_.BeginScan()) {}

std::vector<SequentialScan::Lane> SequentialScan::LanesOf(std::size_t row) {
  std::vector<Lane> lanes;
  for (SequentialComponent& component : components_) {
    Plane& plane = component.plane;
    for (std::size_t y = 0; y < plane.Down(); ++y) {
      const std::size_t blockRow = row * plane.Down() + y;
      for (std::size_t x = 0; x < plane.Across(); ++x) {
        lanes.push_back({&component, plane.WantedColumns() + x, plane.Row(8 * blockRow) + 8 * x, plane.Across(),
                         plane.Stride(), plane.WantedRows(blockRow)});
      }
    }
  }
  return lanes;
}

bool SequentialScan::PassMCU(BitWindow& window, const std::vector<Lane>& lanes, std::size_t mcu) {
  const auto restart = [this] {
    for (SequentialComponent& component : components_) component.prediction = 0;
    return true;
  };
  if (!reader_.BeginMCU(window, restart)) return false;
  for (const Lane& lane : lanes) {
    if (!lane.Pass(window, mcu)) return false;
  }
  return true;
}

bool SequentialScan::PassRow(std::size_t row) {
  const std::vector<Lane> lanes = LanesOf(row);
  BitWindow window = window_;
  for (std::size_t mcu = 0; mcu < grid_.perRow; ++mcu) {
    if (!PassMCU(window, lanes, mcu)) return false;
  }
  window_ = window;
  if (!reader_.HoldsAllOf(window)) return false;
  return row + 1 < grid_.rows || (reader_.EndsScan(window) && reader_.Marker() == kEndOfImage);
}

}  // namespace vantorium::image::jpeg
