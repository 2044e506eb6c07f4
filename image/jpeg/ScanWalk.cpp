#include "image/jpeg/ScanWalk.h"

#include <cstdlib>
#include <utility>

namespace vantorium::image::jpeg {
namespace {

constexpr unsigned kFirstRestart = 0xD0;
constexpr unsigned kEndOfImage = 0xD9;

bool ReadDC(BitWindow& window, ScanComponent& component) {
  window.Refill();
  const Symbol symbol = component.codes->dc.Read(window);
  window.Drop(symbol.length);
  component.prediction += static_cast<unsigned>(symbol.value);
  return symbol.move != kBadCode;
}

// A local copy of the window stays in registers.
bool SkipBlock(BitWindow& shared, ScanComponent& component) {
  BitWindow window = shared;
  if (!ReadDC(window, component)) return false;
  const unsigned k = component.codes->acSkip.Skip(window);
  shared = window;
  return EndsWell(k);
}

// Returns the sum of the absolute coefficients, or more than kMostSum if the block is invalid.
int ReadBlock(BitWindow& shared, ScanComponent& component, Block& block) {
  BitWindow window = shared;
  if (!ReadDC(window, component)) return kMostSum + 1;
  Clear(block);
  int sum = 0;
  const auto put = [&](unsigned k, int value) {
    const int coefficient = value * component.steps[k];
    sum += std::abs(coefficient);
    block.values[kPlaceInBlock[k]] = static_cast<std::int16_t>(coefficient);
  };
  put(0, static_cast<std::int16_t>(component.prediction));
  unsigned k = 0;
  const ValueTable& table = component.codes->ac;
  const auto take = [&](const Symbol& symbol) {
    window.Drop(symbol.length);
    k += symbol.move;
    if (k <= kLastPlace) put(k, symbol.value);
  };
  while (k < kLastPlace) {
    window.Refill();
    take(table.Read(window));
    // The window still holds enough bits for two short symbols.
    for (int i = 0; i < 2 && k < kLastPlace; ++i) {
      const Symbol symbol = table.ReadShort(window);
      if (symbol.length == 0) break;
      take(symbol);
    }
  }
  shared = window;
  return EndsWell(k) ? sum : kMostSum + 1;
}

}  // namespace

/// The blocks at one position within the MCUs of a row.
struct ScanWalk::Lane {
  ScanComponent* component;
  const std::uint8_t* wanted;  // the mark of the first MCU's block
  std::uint8_t* samples;
  std::size_t step;  // in blocks, from one MCU to the next
  std::size_t stride;
  unsigned rows;

  [[nodiscard]] bool Pass(BitWindow& window, std::size_t mcu) const {
    if (rows == 0 || wanted[mcu * step] == 0) return SkipBlock(window, *component);
    Block block;
    const int sum = ReadBlock(window, *component, block);
    if (sum > kMostSum || (sum > kTameSum && !IsTame(block, rows))) return false;
    TransformRows(block, rows, samples + mcu * step * 8, stride);
    return true;
  }
};

ScanWalk::ScanWalk(ScanData data, MCUGrid grid, unsigned restartInterval, std::vector<ScanComponent> components)
    : data_(std::move(data)),
      grid_(grid),
      restartInterval_(restartInterval),
      components_(std::move(components)),
      window_(data_.Begin()),
      limit_(data_.Begin()),
      untilRestart_(restartInterval) {}

std::vector<ScanWalk::Lane> ScanWalk::LanesOfRow() {
  std::vector<Lane> lanes;
  for (ScanComponent& component : components_) {
    Plane& plane = component.plane;
    for (std::size_t y = 0; y < plane.Down(); ++y) {
      const std::size_t blockRow = rowsPassed_ * plane.Down() + y;
      for (std::size_t x = 0; x < plane.Across(); ++x) {
        lanes.push_back({&component, plane.WantedColumns() + x, plane.Row(8 * blockRow) + 8 * x, plane.Across(),
                         plane.Stride(), plane.WantedRows(blockRow)});
      }
    }
  }
  return lanes;
}

// At the start of a segment the limit is its first byte, so the first MCU comes here, too.
BitWindow ScanWalk::Extended(BitWindow window) {
  if (!data_.IsWhole()) window.MoveTo(data_.More(window.Next()));
  limit_ = data_.End() - (data_.IsWhole() ? 0 : ScanData::kRoom);
  return window;
}

bool ScanWalk::EndsSegment(BitWindow window, unsigned marker) {
  if (!data_.IsWhole()) window = Extended(window);
  const std::ptrdiff_t bits = window.BitsBefore(data_.End());
  return data_.IsWhole() && data_.Marker() == marker && bits >= 0 && bits < 8;
}

bool ScanWalk::PassRestart(BitWindow window) {
  if (!EndsSegment(window, kFirstRestart + restarts_ % 8)) return false;
  ++restarts_;
  untilRestart_ = restartInterval_;
  for (ScanComponent& component : components_) component.prediction = 0;
  data_.BeginNextSegment();
  limit_ = data_.Begin();
  return true;
}

bool ScanWalk::PassMCU(BitWindow& window, const std::vector<Lane>& lanes, std::size_t mcu) {
  if (window.Next() >= limit_) {
    window = Extended(window);
    if (window.BitsBefore(data_.End()) < 0) return false;
  }
  for (const Lane& lane : lanes) {
    if (!lane.Pass(window, mcu)) return false;
  }
  return true;
}

bool ScanWalk::PassRow() {
  const std::vector<Lane> lanes = LanesOfRow();
  BitWindow window = window_;
  for (std::size_t mcu = 0; mcu < grid_.perRow; ++mcu) {
    if (restartInterval_ != 0 && untilRestart_-- == 0) {
      if (!PassRestart(window)) return false;
      --untilRestart_;
      window = BitWindow(data_.Begin());
    }
    if (!PassMCU(window, lanes, mcu)) return false;
  }
  window_ = window;
  // PassMCU checks that an MCU begins within the data; whether the last one also ends there is checked here.
  if (window.BitsBefore(data_.End()) < 0) return false;
  return ++rowsPassed_ < grid_.rows || EndsSegment(window, kEndOfImage);
}

}  // namespace vantorium::image::jpeg
