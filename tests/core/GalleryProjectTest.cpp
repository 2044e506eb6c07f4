#include "core/GalleryProject.h"
#include "env/RuntimeFailure.h"

#include <string>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>

namespace vantorium::core {
namespace {

std::int32_t FailureOf(const std::string& hex) {
  try {
    std::ignore = HexToColor(hex);
  } catch (const env::RuntimeFailure& failure) {
    return failure.Number();
  }
  return 0;
}

GalleryProject Table(const std::string& rows, const std::string& columns) {
  GalleryProject project;
  project.textThumbnailsTableRows = rows;
  project.textThumbnailsTableColumns = columns;
  return project;
}

TEST(GalleryProject, PageCountIsTheQuotientRoundedUp) {
  struct Case {
    const char* rows;
    const char* columns;
    std::int32_t images;
    std::int32_t pages;
  };
  const Case cases[] = {{"5", "5", 0, 0},     {"5", "5", 1, 1},           {"5", "5", 25, 1},       {"5", "5", 26, 2},
                        {"5", "5", 37, 2},    {"5", "5", 38, 2},          {"5", "5", 50, 2},       {"5", "5", 51, 3},
                        {"1", "1", 7, 7},     {"2", "1", 5, 3},           {"2", "1", 3, 2},        {"99999", "0", 7, 0},
                        {"1", "32767", 1, 1}, {"1", "1", 100000, 100000}, {"5", "5", 100000, 4000}};
  for (const auto& [rows, columns, images, pages] : cases) {
    EXPECT_EQ(ThumbnailPageCount(Table(rows, columns), images), pages)
        << rows << " x " << columns << ", " << images << " images";
  }
}

TEST(GalleryProject, WithoutRowsOrColumnsThereAreNoPages) {
  for (const char* none : {"0", "", "abc", "0.05"}) {
    EXPECT_EQ(ThumbnailPageCount(Table(none, "5"), 10), 0) << none;
    EXPECT_EQ(ThumbnailPageCount(Table("5", none), 10), 0) << none;
  }
}

TEST(GalleryProject, TheProductOfRowsAndColumnsIsRoundedHalfToEven) {
  EXPECT_EQ(ThumbnailsPerPage(Table("2.5", "1")), 2);
  EXPECT_EQ(ThumbnailsPerPage(Table("3.5", "1")), 4);
  EXPECT_EQ(ThumbnailsPerPage(Table("2.5", "2")), 5);
  EXPECT_EQ(ThumbnailsPerPage(Table("0.5", "1")), 0);
  EXPECT_EQ(ThumbnailsPerPage(Table(" 3 ", "1e1")), 30);
}

TEST(GalleryProject, AHugeTableIsClampedAndHasRoomForEveryList) {
  EXPECT_EQ(ThumbnailsPerPage(Table("1", "32768")), 32768);
  EXPECT_EQ(ThumbnailPageCount(Table("182", "182"), 33125), 2);
  for (const auto& [rows, columns] : {std::pair{"99999", "99999"}, {"1e300", "1e300"}, {"1e999", "1"}}) {
    EXPECT_EQ(ThumbnailsPerPage(Table(rows, columns)), 2147483647) << rows << " x " << columns;
    EXPECT_EQ(ThumbnailPageCount(Table(rows, columns), 2147483647), 1) << rows << " x " << columns;
  }
}

TEST(GalleryProject, WithNegativeRowsOrColumnsThereAreNoPages) {
  EXPECT_EQ(ThumbnailPageCount(Table("-1", "5"), 10), 0);
  EXPECT_EQ(ThumbnailPageCount(Table("5", "-1e999"), 10), 0);
}

TEST(GalleryProject, AColorIsWrittenInUppercaseHexadecimalWithoutSwappingBytes) {
  const std::pair<Color, const char*> cases[] = {{0x0000FF, "0000FF"},    {0xA00000, "A00000"}, {0, "000000"},
                                                 {0xFFFFFF, "FFFFFF"},    {0x0000ab, "0000AB"}, {0x1234567, "1234567"},
                                                 {0xFFFFFFFF, "FFFFFFFF"}};
  for (const auto& [color, text] : cases) EXPECT_EQ(ColorToHex(color), text);
}

TEST(GalleryProject, AColorIsReadAsAHexadecimalNumber) {
  const std::pair<const char*, Color> cases[] = {{"0000FF", 0xFF},      {"FF", 0xFF}, {"ff", 0xFF},
                                                 {"A00000", 0xA00000},  {"0", 0},     {"FFFFFFFF", 0xFFFFFFFF},
                                                 {"0000000000A0", 0xA0}};
  for (const auto& [text, color] : cases) EXPECT_EQ(HexToColor(text), color) << text;
}

TEST(GalleryProject, ATextThatIsNotAHexadecimalNumberIsAFailure) {
  for (const char* text : {"", "red", "#FF0000", "0xFF", "FF ", " FF", "-1", "+1", "F F", "1.0"}) {
    EXPECT_EQ(FailureOf(text), static_cast<std::int32_t>(env::FailureKind::TypeMismatch)) << '"' << text << '"';
  }
  for (const char* text : {"100000000", "FFFFFFFFF"}) {
    EXPECT_EQ(FailureOf(text), static_cast<std::int32_t>(env::FailureKind::Overflow)) << text;
  }
}

TEST(GalleryProject, EveryColorIsReadBackFromItsText) {
  for (Color color = 0; color <= 0xFFFFFF; color += 0x1357) EXPECT_EQ(HexToColor(ColorToHex(color)), color);
}

}  // namespace
}  // namespace vantorium::core
