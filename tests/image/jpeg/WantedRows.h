#pragma once

#include "image/WantedPixels.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <vector>

namespace vantorium::fakes {

/// The wanted pixels of wanted rows, by row; the other bytes are 0.
using WantedRows = std::map<std::size_t, std::vector<std::uint8_t>>;

/// Some pixels of a picture, and its bottom row. Number 0 wants all; the others, the fewer the higher they are.
[[nodiscard]] image::WantedPixels SomePixels(std::int32_t width, std::int32_t height, unsigned number);

/// What the library makes of a file. Nothing when it can't be read in whole.
[[nodiscard]] std::optional<WantedRows> ReadByLibrary(const std::filesystem::path& file,
                                                      const image::WantedPixels& wanted);
/// What JPEGDecoder does that knows what is wanted.
[[nodiscard]] std::optional<WantedRows> ReadAsWanted(const std::filesystem::path& file,
                                                     const image::WantedPixels& wanted);
/// What SequentialDecoder does without the library behind it. Nothing when it gives up.
[[nodiscard]] std::optional<WantedRows> ReadAlone(const std::filesystem::path& file, const image::WantedPixels& wanted);

}  // namespace vantorium::fakes
