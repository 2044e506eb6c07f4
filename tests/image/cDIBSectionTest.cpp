#include "image/cDIBSection.h"

#include <limits>
#include <utility>

// Lets the allocator return null for sizes beyond all memory; the address sanitizer does so only with this option.
extern "C" const char* __asan_default_options() {
  return "allocator_may_return_null=1";
}

namespace vantorium::image {
namespace {

TEST(cDIBSection, ANewObjectIsEmpty) {
  const cDIBSection dib;
  EXPECT_EQ(dib.DIBSectionBitsPtr(), nullptr);
  EXPECT_EQ(dib.width(), 0);
  EXPECT_EQ(dib.height(), 0);
}

TEST(cDIBSection, RowsBeginAtMultiplesOfFourBytes) {
  constexpr std::pair<std::int32_t, std::int32_t> kCases[] = {{1, 4}, {2, 8}, {3, 12}, {4, 12}, {5, 16}, {8, 24}};
  for (const auto& [width, bytes] : kCases) {
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(width, 3)) << width;
    EXPECT_EQ(dib.BytesPerScanLine(), bytes) << width;
    EXPECT_EQ(dib.Row(2) - dib.DIBSectionBitsPtr(), 2 * bytes) << width;
  }
}

TEST(cDIBSection, ClearUpKeepsTheWidth) {
  cDIBSection dib;
  ASSERT_TRUE(dib.Create(7, 5));
  dib.ClearUp();
  EXPECT_EQ(dib.width(), 7);
  EXPECT_EQ(dib.height(), 5);
  EXPECT_EQ(dib.DIBSectionBitsPtr(), nullptr);
}

TEST(cDIBSection, ARefusedSizeLeavesTheObjectEmpty) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::pair<std::int32_t, std::int32_t> kSizes[] = {{0, 5},     {5, 0},         {-1, 5},           {5, -1},
                                                              {kMost, 1}, {kMost, kMost}, {715827880, kMost}};
  for (const auto& [width, height] : kSizes) {
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(2, 2));
    EXPECT_FALSE(dib.Create(width, height)) << width << " x " << height;
    EXPECT_EQ(dib.DIBSectionBitsPtr(), nullptr) << width << " x " << height;
  }
}

TEST(cDIBSection, ASecondCreateDiscardsTheOldPicture) {
  cDIBSection dib;
  ASSERT_TRUE(dib.Create(3, 3));
  ASSERT_TRUE(dib.Create(5, 2));
  EXPECT_EQ(dib.width(), 5);
  EXPECT_EQ(dib.height(), 2);
  dib.Row(1)[15] = 1;
  EXPECT_EQ(dib.DIBSectionBitsPtr()[31], 1);
}

}  // namespace
}  // namespace vantorium::image
