// How Exif data lead to the orientation. A TIFF file follows the name; all places count from its start:
//
//   "Exif" 0, a fill byte
//   "II" (least byte first) or "MM" (greatest byte first), 42 as 16 bits, the place of the first directory as 32 bits
//   the directory: the number of entries as 16 bits; 12 bytes for each
//   an entry: tag and type as 16 bits each, count as 32 bits, value in 4 bytes, short ones in the first of them
#include "image/ExifOrientation.h"

#include <cstdint>

namespace vantorium::image {
namespace {

constexpr std::string_view kName("Exif\0", 5);
constexpr std::size_t kDirectoryPlace = 4;
constexpr std::uint32_t kVersion = 42;
constexpr std::size_t kEntrySize = 12;
constexpr std::uint32_t kOrientationTag = 0x0112;
constexpr std::uint32_t kShortType = 3;

/// Reads numbers at places of a TIFF file; nullopt where a number isn't wholly inside.
class TIFFNumbers {
 public:
  TIFFNumbers(std::string_view bytes, bool greatestFirst) : bytes_(bytes), greatestFirst_(greatestFirst) {}

  [[nodiscard]] std::optional<std::uint32_t> At(std::size_t place, std::size_t size) const {
    if (place > bytes_.size() || bytes_.size() - place < size) return std::nullopt;
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < size; ++i) {
      const std::size_t at = greatestFirst_ ? place + i : place + size - 1 - i;
      number = number << 8U | static_cast<unsigned char>(bytes_[at]);
    }
    return number;
  }
  [[nodiscard]] std::optional<std::uint32_t> Short(std::size_t place) const { return At(place, 2); }
  [[nodiscard]] std::optional<std::uint32_t> Long(std::size_t place) const { return At(place, 4); }

 private:
  std::string_view bytes_;
  bool greatestFirst_;
};

std::optional<Orientation> OrientationOfEntry(const TIFFNumbers& tiff, std::size_t entry) {
  const auto value = tiff.Short(entry + 8);
  if (tiff.Short(entry + 2) != kShortType || tiff.Long(entry + 4) != 1U || !value) return std::nullopt;
  if (*value < 1 || *value > 8) return std::nullopt;
  return static_cast<Orientation>(*value);
}

}  // namespace

std::optional<Orientation> OrientationInExif(std::string_view segment) {
  if (!segment.starts_with(kName) || segment.size() < kName.size() + 1) return std::nullopt;
  const std::string_view file = segment.substr(kName.size() + 1);
  const bool greatestFirst = file.starts_with("MM");
  if (!greatestFirst && !file.starts_with("II")) return std::nullopt;
  const TIFFNumbers tiff(file, greatestFirst);
  const auto directory = tiff.Long(kDirectoryPlace);
  if (tiff.Short(2) != kVersion || !directory) return std::nullopt;
  const std::uint32_t entries = tiff.Short(*directory).value_or(0);
  for (std::uint32_t i = 0; i < entries; ++i) {
    const std::size_t entry = std::size_t{*directory} + 2 + i * kEntrySize;
    const auto tag = tiff.Short(entry);
    if (!tag) return std::nullopt;
    if (*tag == kOrientationTag) return OrientationOfEntry(tiff, entry);
  }
  return std::nullopt;
}

}  // namespace vantorium::image
