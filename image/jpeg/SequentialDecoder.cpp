#include "image/jpeg/SequentialDecoder.h"

#include <algorithm>
#include <utility>

namespace vantorium::image::jpeg {
namespace {

template <typename Want>
void ForEachMark(const std::vector<std::uint8_t>& marks, Want want) {
  for (std::size_t i = 0; i < marks.size(); ++i) {
    if (marks[i] != 0) want(i);
  }
}

void Want(UsualFile& file, const WantedPixels& wanted) {
  ForEachMark(wanted.columns, [&](std::size_t x) { file.components[0].plane.WantColumn(x); });
  ForEachMark(wanted.rows, [&](std::size_t y) { file.components[0].plane.WantRow(y); });
  for (std::size_t i = 1; i < file.components.size(); ++i) {
    Plane& plane = file.components[i].plane;
    ForEachMark(wanted.columns, [&](std::size_t x) {
      plane.WantColumn(file.chromaColumns.Own(x));
      plane.WantColumn(file.chromaColumns.Beside(x));
    });
    ForEachMark(wanted.rows, [&](std::size_t y) {
      plane.WantRow(file.chromaRows.Own(y));
      plane.WantRow(file.chromaRows.Beside(y));
    });
  }
}

}  // namespace

// Converting a few unwanted columns costs less than another span.
std::vector<SequentialDecoder::Span> SequentialDecoder::SpansOf(const std::vector<std::uint8_t>& marks) {
  constexpr std::size_t kFew = 8;
  std::vector<Span> spans;
  ForEachMark(marks, [&](std::size_t i) {
    if (spans.empty() || spans.back().end + kFew < i) spans.push_back({i, i});
    spans.back().end = i + 1;
  });
  return spans;
}

std::unique_ptr<SequentialDecoder> SequentialDecoder::For(const jpeg_decompress_struct& header, int descriptor,
                                                          off_t place, const WantedPixels& wanted) {
  auto file = TakeOver(header);
  if (!file) return nullptr;
  Want(*file, wanted);
  return std::make_unique<SequentialDecoder>(std::move(*file), ScanData(descriptor, place), wanted);
}

SequentialDecoder::SequentialDecoder(UsualFile file, ScanData data, const WantedPixels& wanted)
    : chroma_(file.chroma),
      chromaColumns_(file.chromaColumns),
      chromaRows_(file.chromaRows),
      wanted_(wanted.rows),
      spans_(SpansOf(wanted.columns)),
      walk_(std::move(data), file.grid, file.restartInterval, std::move(file.components)) {}

bool SequentialDecoder::ReadRow(std::size_t row, std::uint8_t* bgr) {
  if (row >= wanted_.size() || wanted_[row] == 0 || !PassTo(row)) return false;
  const SampleRows rows = {walk_.PlaneOf(0).Row(row), ChromaRowsOf(1, row), ChromaRowsOf(2, row), chromaColumns_};
  for (const Span& span : spans_) WritePixels(rows, chroma_, span.begin, span.end, bgr);
  return true;
}

// Smooth chroma may need a row of the next MCUs.
bool SequentialDecoder::PassTo(std::size_t row) {
  std::size_t mcuRow = walk_.PlaneOf(0).MCURowOf(row);
  if (chroma_ != Chroma::None) mcuRow = std::max(mcuRow, walk_.PlaneOf(1).MCURowOf(chromaRows_.Beside(row)));
  while (walk_.RowsPassed() <= mcuRow) {
    if (!walk_.PassRow()) return false;
  }
  return true;
}

ChromaRows SequentialDecoder::ChromaRowsOf(std::size_t component, std::size_t row) const {
  if (chroma_ == Chroma::None) return {nullptr, nullptr};
  const Plane& plane = walk_.PlaneOf(component);
  return {plane.Row(chromaRows_.Own(row)), plane.Row(chromaRows_.Beside(row))};
}

}  // namespace vantorium::image::jpeg
