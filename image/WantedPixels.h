#pragma once

#include <cstdint>
#include <vector>

namespace vantorium::image {

/// The pixels that are used: those in both a marked column and a marked row. Rows are counted from the top.
struct WantedPixels {
  WantedPixels(std::int32_t width, std::int32_t height)
      : columns(static_cast<std::size_t>(width)), rows(static_cast<std::size_t>(height)) {}

  std::vector<std::uint8_t> columns;
  std::vector<std::uint8_t> rows;
};

}  // namespace vantorium::image
