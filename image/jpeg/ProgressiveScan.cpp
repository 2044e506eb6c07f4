#include "image/jpeg/ProgressiveScan.h"

#include "image/jpeg/ACBand.h"
#include "image/jpeg/HuffmanTables.h"

#include <limits>

namespace vantorium::image::jpeg {
namespace {

/// The blocks of one component in a scan of DC coefficients.
struct DCPart {
  Coefficients* coefficients;
  std::size_t across;  // blocks of an MCU
  std::size_t down;
  std::optional<ValueTable> table;  // none if the scan refines
  int prediction = 0;
};

class DCScan {
 public:
  DCScan(const ScanHeader& header, SegmentReader& reader)
      : header_(header), reader_(reader), window_(reader.BeginScan()) {}

  [[nodiscard]] bool AddParts(const ScanHeaders& headers, ProgressivePicture& picture);
  [[nodiscard]] bool Read(const std::stop_token& stop);

 private:
  /// The blocks at one position within the MCUs of a row.
  struct Lane {
    DCPart* part;
    Coefficients::Row blocks;
    std::size_t first;
  };

  [[nodiscard]] std::vector<Lane> LanesOf(std::size_t row);
  [[nodiscard]] bool ReadRow(std::size_t row);
  [[nodiscard]] bool ReadBlock(BitWindow& window, DCPart& part, std::int16_t* value) const;

  const ScanHeader& header_;
  SegmentReader& reader_;
  BitWindow window_;
  MCUGrid grid_ = {};
  std::vector<DCPart> parts_;
};

// A scan of one component has MCUs of one block, and only the blocks that have samples of the picture.
bool DCScan::AddParts(const ScanHeaders& headers, ProgressivePicture& picture) {
  const bool alone = header_.parts.size() == 1;
  for (const ScanHeader::Part& part : header_.parts) {
    const Component& component = picture.components[part.component];
    grid_ = alone ? MCUGrid{component.blocksPerRow, component.blockRows} : picture.grid;
    parts_.push_back({&picture.coefficients[part.component],
                      alone ? 1 : component.plane.Across(),
                      alone ? 1 : component.plane.Down(),
                      {}});
    if (header_.Refines()) continue;
    const auto code = headers.Tables().DC(part.dcTable);
    if (!code) return false;
    parts_.back().table.emplace(*code);
  }
  return true;
}

bool DCScan::ReadBlock(BitWindow& shared, DCPart& part, std::int16_t* value) const {
  BitWindow window = shared;
  window.Refill();
  if (!part.table) {
    const std::size_t bit = window.Peek(1);
    window.Drop(1);
    if (value != nullptr) *value = static_cast<std::int16_t>(*value | static_cast<int>(bit << header_.lowest));
    shared = window;
    return true;
  }
  const Symbol symbol = part.table->Read(window);
  window.Drop(symbol.length);
  shared = window;
  part.prediction += symbol.value;
  const int whole = part.prediction * (1 << header_.lowest);
  using Limits = std::numeric_limits<std::int16_t>;
  if (symbol.move == kBadCode || whole < Limits::min() || whole > Limits::max()) return false;
  if (value != nullptr) *value = static_cast<std::int16_t>(whole);
  return true;
}

std::vector<DCScan::Lane> DCScan::LanesOf(std::size_t row) {
  std::vector<Lane> lanes;
  for (DCPart& part : parts_) {
    for (std::size_t y = 0; y < part.down; ++y) {
      const Coefficients::Row blocks = part.coefficients->RowOf(row * part.down + y);
      for (std::size_t x = 0; x < part.across; ++x) lanes.push_back({&part, blocks, x});
    }
  }
  return lanes;
}

bool DCScan::ReadRow(std::size_t row) {
  const std::vector<Lane> lanes = LanesOf(row);
  const auto restart = [this] {
    for (DCPart& part : parts_) part.prediction = 0;
    return true;
  };
  BitWindow window = window_;
  for (std::size_t column = 0; column < grid_.perRow; ++column) {
    if (!reader_.BeginMCU(window, restart)) return false;
    for (const Lane& lane : lanes) {
      DCPart& part = *lane.part;
      if (!ReadBlock(window, part, lane.blocks.ValuesOf(column * part.across + lane.first))) return false;
    }
  }
  window_ = window;
  return true;
}

bool DCScan::Read(const std::stop_token& stop) {
  for (std::size_t row = 0; row < grid_.rows; ++row) {
    if (!ReadRow(row) || stop.stop_requested()) return false;
  }
  return reader_.EndsScan(window_);
}

bool ReadACScan(SegmentReader& reader, const ScanHeaders& headers, ProgressivePicture& picture,
                const std::stop_token& stop) {
  const ScanHeader& header = *headers.Scan();
  const ScanHeader::Part& part = header.parts.front();
  const auto code = headers.Tables().AC(part.acTable);
  // A refining scan has one bit of a coefficient, a first one up to what makes 16 bits with those still missing.
  if (!code || code->HasValuesAbove(header.Refines() ? 1 : 15 - header.lowest)) return false;

  const Component& component = picture.components[part.component];
  ACBand band(reader, header, ValueTable(*code));
  for (std::size_t row = 0; row < component.blockRows; ++row) {
    const Coefficients::Row blocks = picture.coefficients[part.component].RowOf(row);
    const bool fine =
        header.Refines() ? band.Refine(blocks, component.blocksPerRow) : band.ReadFirst(blocks, component.blocksPerRow);
    if (!fine || stop.stop_requested()) return false;
  }
  return band.EndsScan();
}

}  // namespace

bool ReadScan(SegmentReader& reader, const ScanHeaders& headers, ProgressivePicture& picture,
              const std::stop_token& stop) {
  const ScanHeader& header = *headers.Scan();
  if (header.first > 0) return ReadACScan(reader, headers, picture, stop);
  DCScan scan(header, reader);
  return scan.AddParts(headers, picture) && scan.Read(stop);
}

}  // namespace vantorium::image::jpeg
