#include "image/InkedSurface.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <vector>

namespace vantorium::image {
namespace {

/// The bits of a one-bit surface. Cairo packs 32 pixels into a machine word, the first one in the lowest bit on
/// little-endian machines and in the highest bit on big-endian ones.
class BitRows {
 public:
  explicit BitRows(cairo_surface_t* surface)
      : bytes_(cairo_image_surface_get_data(surface)), stride_(cairo_image_surface_get_stride(surface)) {}

  [[nodiscard]] std::int32_t WordsPerRow() const { return stride_ / 4; }

  /// Pixels 32 * index to 32 * index + 31 of a row, from the lowest bit to the highest.
  [[nodiscard]] std::uint32_t Word(std::int32_t row, std::int32_t index) const {
    std::uint32_t word = 0;
    std::memcpy(&word, bytes_ + static_cast<std::ptrdiff_t>(row) * stride_ + static_cast<std::ptrdiff_t>(index) * 4,
                sizeof word);
    return std::endian::native == std::endian::little ? word : Reversed(word);
  }

 private:
  static std::uint32_t Reversed(std::uint32_t word) {
    std::uint32_t reversed = 0;
    for (int i = 0; i < 32; ++i) reversed |= ((word >> i) & 1U) << (31 - i);
    return reversed;
  }

  const unsigned char* bytes_;
  std::int32_t stride_;
};

/// A half-open range: `end` is one past the last.
struct Range {
  std::int32_t first = 0;
  std::int32_t end = 0;
  [[nodiscard]] std::int32_t Count() const { return end - first; }
};

Range InkedRows(const std::vector<std::uint32_t>& rows) {
  const auto isInked = [](std::uint32_t inked) { return inked != 0; };
  const auto first = std::find_if(rows.begin(), rows.end(), isInked);
  const auto last = std::find_if(rows.rbegin(), rows.rend(), isInked);
  if (first == rows.end()) return {};
  return {static_cast<std::int32_t>(first - rows.begin()), static_cast<std::int32_t>(last.base() - rows.begin())};
}

Range InkedColumns(const std::vector<std::uint32_t>& columns) {
  const Range words = InkedRows(columns);
  if (words.Count() == 0) return {};
  return {32 * words.first + std::countr_zero(columns[static_cast<std::size_t>(words.first)]),
          32 * words.end - std::countl_zero(columns[static_cast<std::size_t>(words.end) - 1])};
}

}  // namespace

SurfaceHandle MakeOneBitSurface(std::int32_t width, std::int32_t height) {
  return SurfaceHandle(cairo_image_surface_create(CAIRO_FORMAT_A1, std::max(width, 0), std::max(height, 0)));
}

TextMask InkOf(cairo_surface_t* surface) {
  cairo_surface_flush(surface);
  if (cairo_surface_status(surface) != CAIRO_STATUS_SUCCESS) return {};
  const BitRows bits(surface);
  std::vector<std::uint32_t> rows(static_cast<std::size_t>(cairo_image_surface_get_height(surface)));
  std::vector<std::uint32_t> columns(static_cast<std::size_t>(bits.WordsPerRow()));
  for (std::size_t y = 0; y < rows.size(); ++y) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
      const std::uint32_t word = bits.Word(static_cast<std::int32_t>(y), static_cast<std::int32_t>(i));
      rows[y] |= word;
      columns[i] |= word;
    }
  }
  const Range inkedRows = InkedRows(rows);
  const Range inkedColumns = InkedColumns(columns);
  TextMask mask(inkedColumns.first, inkedRows.first, inkedColumns.Count(), inkedRows.Count());
  for (std::int32_t y = inkedRows.first; y < inkedRows.end; ++y) {
    for (std::int32_t i = inkedColumns.first / 32; 32 * i < inkedColumns.end; ++i) {
      for (std::uint32_t word = bits.Word(y, i); word != 0; word &= word - 1) {
        mask.Cover(32 * i + std::countr_zero(word), y);
      }
    }
  }
  return mask;
}

}  // namespace vantorium::image
