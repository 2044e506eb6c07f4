#pragma once

#include "image/JPEGDecoder.h"
#include "image/Orientation.h"

#include <cstdint>
#include <stop_token>
#include <vector>

namespace vantorium::image {

/// Decodes a photograph and gives out its rows as they are once it is upright, from its top down. A photograph that
/// need not be turned, or only mirrored from left to right, is given out as it is decoded. Of any other the wanted
/// pixels, and no others, are held in memory, in lines that are rows of the upright picture.
class UprightRows {
 public:
  /// Prepares to give out the pixels that are marked in `wanted`, a picture of the upright size. Call between Open and
  /// Start of the decoder, which must outlive this object.
  UprightRows(JPEGDecoder& decoder, Orientation orientation, const WantedPixels& wanted);

  /// The bytes that Start will hold.
  [[nodiscard]] std::uint64_t HeldBytes() const;
  /// Starts the decoder and decodes what must be held. Returns false if the data are damaged or truncated, the picture
  /// is too large to be held, or a stop is requested.
  [[nodiscard]] bool Start(const std::stop_token& stop);
  /// Advances to a wanted row below the last one, counted from the bottom. Returns false if the data are damaged or
  /// truncated.
  [[nodiscard]] bool ReadRow(std::int32_t row);
  /// The current row, 3 bytes per pixel, and the one before it. Only wanted pixels have defined contents.
  [[nodiscard]] const std::uint8_t* Row() const { return row_.data(); }
  [[nodiscard]] const std::uint8_t* RowAbove() const { return above_.data(); }

 private:
  [[nodiscard]] bool DecodeRow(std::int32_t row, std::uint8_t* bgr);
  [[nodiscard]] bool HoldPixels(const std::stop_token& stop);
  void HoldRow(const std::uint8_t* row, std::uint8_t* pixels) const;
  void HoldStrip(std::size_t first, std::size_t count);
  void GiveRow(std::int32_t row);

  JPEGDecoder& decoder_;
  Turn turn_;
  bool held_;
  PictureSize stored_;
  std::vector<std::int32_t> columns_;  // the wanted columns of the stored picture
  std::vector<std::int32_t> rows_;     // and its wanted rows, both from the top left
  std::int32_t position_;              // the last decoded row of the stored picture, from the bottom
  std::vector<std::uint8_t> pixels_;   // the held lines
  std::vector<std::uint8_t> strip_;    // some decoded rows, to be written to many lines at once
  std::vector<std::uint8_t> row_;
  std::vector<std::uint8_t> above_;
};

}  // namespace vantorium::image
