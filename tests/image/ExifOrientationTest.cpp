#include "image/ExifOrientation.h"
#include "tests/fakes/PhotographMaker.h"

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

// Offsets in the data of ExifOf: "Exif" and two bytes, the TIFF header, the number of entries, entries of 12 bytes.
constexpr std::size_t kByteOrder = 6;
constexpr std::size_t kVersion = 8;
constexpr std::size_t kDirectory = 10;
constexpr std::size_t kEntries = 14;
constexpr std::size_t kSecondEntry = kEntries + 2 + 12;
constexpr std::size_t kType = kSecondEntry + 2;
constexpr std::size_t kCount = kSecondEntry + 4;

TEST(ExifOrientation, EachOrientationIsReadInBothByteOrders) {
  for (const bool bigEndian : {false, true}) {
    for (int value = 1; value <= 8; ++value) {
      EXPECT_EQ(OrientationInExif(fakes::ExifOf(value, bigEndian)), static_cast<Orientation>(value));
    }
  }
}

TEST(ExifOrientation, AnyOtherNumberIsIgnored) {
  for (const int value : {0, 9, 10, 255, 256, 0x0600, 65535}) {
    EXPECT_FALSE(OrientationInExif(fakes::ExifOf(value))) << value;
  }
}

TEST(ExifOrientation, DataThatAreCutOffBeforeTheValueAreIgnored) {
  const std::string exif = fakes::ExifOf(6);
  const std::size_t needed = kSecondEntry + 10;
  for (std::size_t size = 0; size <= exif.size(); ++size) {
    EXPECT_EQ(OrientationInExif(exif.substr(0, size)).has_value(), size >= needed) << size;
  }
}

TEST(ExifOrientation, DataWithAnyWrongByteBeforeTheTagAreIgnored) {
  const std::string exif = fakes::ExifOf(6);
  for (const std::size_t place :
       {std::size_t{0}, std::size_t{4}, kByteOrder, kByteOrder + 1, kVersion, kVersion + 1, kDirectory, kDirectory + 1,
        kDirectory + 3, kEntries, kSecondEntry, kSecondEntry + 1, kType, kType + 1, kCount, kCount + 3}) {
    std::string wrong = exif;
    wrong[place] = static_cast<char>(place == kEntries ? 1 : wrong[place] ^ 0x51);
    EXPECT_FALSE(OrientationInExif(wrong)) << "byte " << place;
  }
}

TEST(ExifOrientation, ADirectoryThatClaimsTooManyEntriesIsReadToTheEndOfTheData) {
  std::string exif = fakes::ExifOf(8);
  exif[kEntries] = exif[kEntries + 1] = '\xFF';
  EXPECT_EQ(OrientationInExif(exif), Orientation::TurnLeft);
  exif[kSecondEntry] = 0x13;
  EXPECT_FALSE(OrientationInExif(exif));
}

TEST(ExifOrientation, TheFillByteAfterTheNameMayHaveAnyValue) {
  std::string exif = fakes::ExifOf(3);
  exif[5] = '\xFF';
  EXPECT_EQ(OrientationInExif(exif), Orientation::TurnAround);
}

}  // namespace
}  // namespace vantorium::image
