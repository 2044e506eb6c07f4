#include "image/jpeg/SequentialDecoder.h"

#include "image/jpeg/Color.h"
#include "image/jpeg/UsualFile.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace vantorium::image::jpeg {
namespace {

struct Span {
  std::size_t begin;
  std::size_t end;
};

// Few unwanted columns between two wanted ones cost less than another span.
std::vector<Span> SpansOf(const std::vector<std::uint8_t>& marks) {
  constexpr std::size_t kFew = 8;
  std::vector<Span> spans;
  for (std::size_t i = 0; i < marks.size(); ++i) {
    if (marks[i] == 0) continue;
    if (spans.empty() || spans.back().end + kFew < i) spans.push_back({i, i});
    spans.back().end = i + 1;
  }
  return spans;
}

void WantColumn(UsualFile& file, std::size_t x) {
  file.components[0].plane.WantColumn(x);
  for (std::size_t i = 1; i < file.components.size(); ++i) {
    Plane& plane = file.components[i].plane;
    const bool half = file.chroma != Chroma::Full;
    plane.WantColumn(half ? x / 2 : x);
    if (half) plane.WantColumn(Beside(x, file.lastChromaColumn));
  }
}

void WantRow(UsualFile& file, std::size_t y) {
  file.components[0].plane.WantRow(y);
  for (std::size_t i = 1; i < file.components.size(); ++i) {
    Plane& plane = file.components[i].plane;
    const bool half = file.chroma == Chroma::HalfBoth;
    plane.WantRow(half ? y / 2 : y);
    if (half) plane.WantRow(Beside(y, file.lastChromaRow));
  }
}

void Want(UsualFile& file, const WantedPixels& wanted) {
  for (std::size_t x = 0; x < wanted.columns.size(); ++x) {
    if (wanted.columns[x] != 0) WantColumn(file, x);
  }
  for (std::size_t y = 0; y < wanted.rows.size(); ++y) {
    if (wanted.rows[y] != 0) WantRow(file, y);
  }
}

}  // namespace

class SequentialDecoder::State {
 public:
  State(UsualFile file, int descriptor, off_t place, const WantedPixels& wanted)
      : chroma_(file.chroma),
        lastChromaColumn_(file.lastChromaColumn),
        lastChromaRow_(file.lastChromaRow),
        wanted_(wanted.rows),
        spans_(SpansOf(wanted.columns)),
        walk_(ScanData(descriptor, place), file.grid, file.restartInterval, std::move(file.components)) {}

  [[nodiscard]] bool ReadRow(std::size_t row, std::uint8_t* bgr) {
    if (row >= wanted_.size() || wanted_[row] == 0 || !PassTo(row)) return false;
    const SampleRows rows = {walk_.PlaneOf(0).Row(row), ChromaRowsOf(1, row), ChromaRowsOf(2, row), lastChromaColumn_};
    for (const Span& span : spans_) WritePixels(rows, chroma_, span.begin, span.end, bgr);
    return true;
  }

 private:
  // Smooth chroma may need a row of the next groups.
  [[nodiscard]] bool PassTo(std::size_t row) {
    std::size_t groupRow = walk_.PlaneOf(0).GroupRowOf(row);
    if (chroma_ == Chroma::HalfBoth)
      groupRow = std::max(groupRow, walk_.PlaneOf(1).GroupRowOf(Beside(row, lastChromaRow_)));
    while (walk_.RowsPassed() <= groupRow) {
      if (!walk_.PassRow()) return false;
    }
    return true;
  }

  [[nodiscard]] ChromaRows ChromaRowsOf(std::size_t component, std::size_t row) const {
    if (chroma_ == Chroma::None) return {nullptr, nullptr};
    const Plane& plane = walk_.PlaneOf(component);
    if (chroma_ != Chroma::HalfBoth) return {plane.Row(row), plane.Row(row)};
    return {plane.Row(row / 2), plane.Row(Beside(row, lastChromaRow_))};
  }

  Chroma chroma_;
  std::size_t lastChromaColumn_;
  std::size_t lastChromaRow_;
  std::vector<std::uint8_t> wanted_;
  std::vector<Span> spans_;
  ScanWalk walk_;
};

SequentialDecoder::SequentialDecoder(std::unique_ptr<State> state) : state_(std::move(state)) {}
SequentialDecoder::~SequentialDecoder() = default;

std::unique_ptr<SequentialDecoder> SequentialDecoder::For(const jpeg_decompress_struct& header, int descriptor,
                                                          off_t place, const WantedPixels& wanted) {
  auto file = TakeOver(header);
  if (!file) return nullptr;
  Want(*file, wanted);
  auto state = std::make_unique<State>(std::move(*file), descriptor, place, wanted);
  return std::unique_ptr<SequentialDecoder>(new SequentialDecoder(std::move(state)));
}

bool SequentialDecoder::ReadRow(std::size_t row, std::uint8_t* bgr) {
  return state_->ReadRow(row, bgr);
}

}  // namespace vantorium::image::jpeg
