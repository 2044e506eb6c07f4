#include "image/UprightRows.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace vantorium::image {
namespace {

// Enough for the pictures of any camera, which have up to 150 megapixels; a header may claim more.
constexpr std::uint64_t kMostHeldBytes = std::uint64_t{1} << 30U;

// Rows that are turned at once. One row alone would touch every line for three bytes.
constexpr std::size_t kStrip = 16;

std::vector<std::int32_t> PlacesOf(const std::vector<std::uint8_t>& marks) {
  std::vector<std::int32_t> places;
  for (std::size_t i = 0; i < marks.size(); ++i) {
    if (marks[i] != 0) places.push_back(static_cast<std::int32_t>(i));
  }
  return places;
}

void ReversePixels(std::vector<std::uint8_t>& row) {
  std::reverse(row.begin(), row.end());
  for (std::size_t i = 0; i < row.size(); i += 3) std::swap(row[i], row[i + 2]);
}

/// The index of `place` in `places`, which contains it.
std::size_t IndexOf(std::int32_t place, const std::vector<std::int32_t>& places) {
  return static_cast<std::size_t>(std::lower_bound(places.begin(), places.end(), place) - places.begin());
}

}  // namespace

// The bottom row of the file is decoded in any case, so that damage in the rows above it does not go unnoticed.
UprightRows::UprightRows(JPEGDecoder& decoder, Orientation orientation, const WantedPixels& wanted)
    : decoder_(decoder),
      turn_(orientation),
      held_(turn_.swapsSides || turn_.reversesRows),
      stored_({decoder.width(), decoder.height()}),
      position_(stored_.height),
      row_(wanted.columns.size() * 3),
      above_(row_.size()) {
  WantedPixels stored = turn_.ToStored(wanted);
  stored.rows.back() = 1;
  if (held_) {
    columns_ = PlacesOf(stored.columns);
    rows_ = PlacesOf(stored.rows);
  }
  decoder.Want(std::move(stored));
}

std::uint64_t UprightRows::HeldBytes() const {
  return std::uint64_t{3} * columns_.size() * rows_.size();
}

bool UprightRows::Start(const std::stop_token& stop) {
  if (HeldBytes() > kMostHeldBytes) return false;
  return decoder_.Start() && (!held_ || HoldPixels(stop));
}

bool UprightRows::DecodeRow(std::int32_t row, std::uint8_t* bgr) {
  const std::int32_t skipped = position_ - row - 1;
  if (skipped > 0 && !decoder_.SkipRows(skipped)) return false;
  position_ = row;
  return decoder_.ReadRow(bgr);
}

bool UprightRows::HoldPixels(const std::stop_token& stop) try {
  pixels_.resize(static_cast<std::size_t>(HeldBytes()));
  strip_.resize(turn_.swapsSides ? 3 * columns_.size() * kStrip : 0);
  std::vector<std::uint8_t> row(static_cast<std::size_t>(stored_.width) * 3);
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (stop.stop_requested() || !DecodeRow(stored_.height - 1 - rows_[i], row.data())) return false;
    const std::size_t inStrip = i % kStrip;
    std::uint8_t* begin = turn_.swapsSides ? &strip_[3 * columns_.size() * inStrip] : &pixels_[3 * columns_.size() * i];
    HoldRow(row.data(), begin);
    const bool isFull = inStrip + 1 == kStrip || i + 1 == rows_.size();
    if (turn_.swapsSides && isFull) HoldStrip(i - inStrip, inStrip + 1);
  }
  return true;
} catch (const std::bad_alloc&) {
  return false;
}

void UprightRows::HoldRow(const std::uint8_t* row, std::uint8_t* pixels) const {
  for (const std::int32_t column : columns_) {
    std::memcpy(pixels, row + 3 * std::ptrdiff_t{column}, 3);
    pixels += 3;
  }
}

/// Writes `count` rows, of which the first is the wanted row `first`, as parts of the lines.
void UprightRows::HoldStrip(std::size_t first, std::size_t count) {
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    std::uint8_t* line = &pixels_[3 * (column * rows_.size() + first)];
    for (std::size_t i = 0; i < count; ++i) std::memcpy(line + 3 * i, &strip_[3 * (i * columns_.size() + column)], 3);
  }
}

bool UprightRows::ReadRow(std::int32_t row) {
  std::swap(row_, above_);
  if (held_) {
    GiveRow(row);
    return true;
  }
  if (!DecodeRow(row, row_.data())) return false;
  if (turn_.reversesColumns) ReversePixels(row_);
  return true;
}

void UprightRows::GiveRow(std::int32_t row) {
  const auto& lines = turn_.swapsSides ? columns_ : rows_;
  const auto& places = turn_.swapsSides ? rows_ : columns_;
  const bool reversesLines = turn_.swapsSides ? turn_.reversesColumns : turn_.reversesRows;
  const bool reversesPlaces = turn_.swapsSides ? turn_.reversesRows : turn_.reversesColumns;
  const PictureSize size = turn_.SizeOf(stored_);
  const std::int32_t line = reversesLines ? row : size.height - 1 - row;
  const std::uint8_t* pixel = &pixels_[3 * IndexOf(line, lines) * places.size()];
  for (const std::int32_t place : places) {
    const std::int32_t column = reversesPlaces ? size.width - 1 - place : place;
    std::memcpy(&row_[3 * static_cast<std::size_t>(column)], pixel, 3);
    pixel += 3;
  }
}

}  // namespace vantorium::image
