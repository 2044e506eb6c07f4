#pragma once

#include "env/FileDescriptor.h"
#include "image/WantedPixels.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

namespace vantorium::fakes {

/// A file in memory. Some file systems wait for the disk when a file is written again and again.
class MemoryFile {
 public:
  MemoryFile();
  /// Replaces the content. Returns a path to the file, valid while this object exists.
  [[nodiscard]] std::filesystem::path Write(std::string_view bytes) const;

 private:
  env::FileDescriptor descriptor_;
};

/// The wanted rows of a picture by row number; the bytes of unwanted pixels are 0.
using WantedRows = std::map<std::size_t, std::vector<std::uint8_t>>;

/// Marks random pixels, always including the bottom row. `number` 0 marks all, higher ones mark fewer.
[[nodiscard]] image::WantedPixels SomePixels(std::int32_t width, std::int32_t height, unsigned number);

/// The rows as JPEGDecoder reads them with libjpeg-turbo. Empty if the file cannot be read to its end.
[[nodiscard]] std::optional<WantedRows> ReadByLibrary(const std::filesystem::path& file,
                                                      const image::WantedPixels& wanted);
/// The rows as JPEGDecoder reads them after Want.
[[nodiscard]] std::optional<WantedRows> ReadAsWanted(const std::filesystem::path& file,
                                                     const image::WantedPixels& wanted);
/// The rows as WantedDecoder alone reads them. Empty if it refuses the file or gives up.
[[nodiscard]] std::optional<WantedRows> ReadAlone(const std::filesystem::path& file, const image::WantedPixels& wanted);

}  // namespace vantorium::fakes
