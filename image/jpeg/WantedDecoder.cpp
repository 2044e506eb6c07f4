#include "image/jpeg/WantedDecoder.h"

#include "image/jpeg/ProgressiveWalk.h"
#include "image/jpeg/SequentialScan.h"
#include "image/jpeg/UsualFile.h"
#include "image/jpeg/Vectors.h"

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
      plane.WantColumn(file.chroma.columns.Own(x));
      plane.WantColumn(file.chroma.columns.Beside(x));
    });
    ForEachMark(wanted.rows, [&](std::size_t y) {
      plane.WantRow(file.chroma.rows.Own(y));
      plane.WantRow(file.chroma.rows.Beside(y));
    });
  }
}

std::unique_ptr<RowWalk> WalkOf(const jpeg_decompress_struct& header, UsualFile file, SegmentReader reader,
                                const std::stop_token& stop) {
  if (header.progressive_mode == FALSE) return SequentialScan::For(header, std::move(file), std::move(reader));
  return std::make_unique<ProgressiveWalk>(header, std::move(file), std::move(reader), stop);
}

}  // namespace

const bool WantedDecoder::kIsFaster = kHasVectors;

// Converting a few unwanted columns costs less than another span.
std::vector<WantedDecoder::Span> WantedDecoder::SpansOf(const std::vector<std::uint8_t>& marks) {
  constexpr std::size_t kFew = 8;
  std::vector<Span> spans;
  ForEachMark(marks, [&](std::size_t i) {
    if (spans.empty() || spans.back().end + kFew < i) spans.push_back({i, i});
    spans.back().end = i + 1;
  });
  return spans;
}

std::unique_ptr<WantedDecoder> WantedDecoder::For(const jpeg_decompress_struct& header, int descriptor, off_t place,
                                                  const WantedPixels& wanted, const std::stop_token& stop) {
  auto file = TakeOver(header);
  if (!file) return nullptr;
  Want(*file, wanted);
  const ChromaLayout chroma = file->chroma;
  auto walk =
      WalkOf(header, std::move(*file), SegmentReader(ScanData(descriptor, place), header.restart_interval), stop);
  return walk == nullptr ? nullptr : std::make_unique<WantedDecoder>(chroma, std::move(walk), wanted);
}

WantedDecoder::WantedDecoder(const ChromaLayout& chroma, std::unique_ptr<RowWalk> walk, const WantedPixels& wanted)
    : chroma_(chroma), wanted_(wanted.rows), spans_(SpansOf(wanted.columns)), walk_(std::move(walk)) {}

bool WantedDecoder::ReadRow(std::size_t row, std::uint8_t* bgr) {
  if (row >= wanted_.size() || wanted_[row] == 0 || !PassTo(row)) return false;
  const SampleRows rows = {walk_->PlaneOf(0).Row(row), ChromaRowsOf(1, row), ChromaRowsOf(2, row), chroma_.columns};
  for (const Span& span : spans_) WritePixels(rows, chroma_.size, span.begin, span.end, bgr);
  return true;
}

// Smooth chroma may need a row of the next MCUs.
bool WantedDecoder::PassTo(std::size_t row) {
  std::size_t mcuRow = walk_->PlaneOf(0).MCURowOf(row);
  if (chroma_.size != Chroma::None) mcuRow = std::max(mcuRow, walk_->PlaneOf(1).MCURowOf(chroma_.rows.Beside(row)));
  for (; rowsPassed_ <= mcuRow; ++rowsPassed_) {
    if (!walk_->PassRow(rowsPassed_)) return false;
  }
  return true;
}

ChromaRows WantedDecoder::ChromaRowsOf(std::size_t component, std::size_t row) const {
  if (chroma_.size == Chroma::None) return {nullptr, nullptr};
  const Plane& plane = walk_->PlaneOf(component);
  return {plane.Row(chroma_.rows.Own(row)), plane.Row(chroma_.rows.Beside(row))};
}

}  // namespace vantorium::image::jpeg
