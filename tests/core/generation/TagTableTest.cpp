#include "core/generation/TagTable.h"

#include <gtest/gtest.h>

namespace vantorium::generation {
namespace {

struct Spelling {
  TagNeeds needs;
  std::string_view tag;
};

constexpr auto kImage = TagNeeds::Image;
constexpr auto kPage = TagNeeds::Page;
constexpr auto kNothing = TagNeeds::Nothing;

constexpr Spelling kSpellings[] = {
    {kImage, "<VANTORIUM_IMAGE_INDEX>"},
    {kImage, "<VANTORIUM_IMAGE_TITLE>"},
    {kImage, "<VANTORIUM_IMAGE_FILENAME>"},
    {kImage, "<VANTORIUM_IMAGE_FILEDATE_SHORT>"},
    {kImage, "<VANTORIUM_IMAGE_FILEDATE_LONG>"},
    {kImage, "<VANTORIUM_IMAGE_FILETIME_SHORT>"},
    {kImage, "<VANTORIUM_IMAGE_FILETIME_LONG>"},
    {kImage, "<VANTORIUM_IMAGE_FILESIZE>"},
    {kImage, "<VANTORIUM_IMAGE_WIDTH>"},
    {kImage, "<VANTORIUM_IMAGE_HEIGHT>"},
    {kImage, "<VANTORIUM_THUMB_WIDTH>"},
    {kImage, "<VANTORIUM_THUMB_HEIGHT>"},
    {kImage, "<VANTORIUM_IMAGE_WIDTH_MAX>"},
    {kImage, "<VANTORIUM_IMAGE_HEIGHT_MAX>"},
    {kImage, "<VANTORIUM_THUMB_WIDTH_MAX>"},
    {kImage, "<VANTORIUM_THUMB_HEIGHT_MAX>"},
    {kNothing, "<VANTORIUM_IMAGE_COUNT>"},
    {kPage, "<VANTORIUM_THUMBPAGE_INDEX>"},
    {kNothing, "<VANTORIUM_THUMBPAGE_COUNT>"},
    {kNothing, "<VANTORIUM_GALLERY_TITLE>"},
    {kNothing, "<VANTORIUM_GALLERY_CREATIONDATE_SHORT>"},
    {kNothing, "<VANTORIUM_GALLERY_CREATIONDATE_LONG>"},
    {kNothing, "<VANTORIUM_GALLERY_CREATIONTIME_SHORT>"},
    {kNothing, "<VANTORIUM_GALLERY_CREATIONTIME_LONG>"},
    {kImage, "<VANTORIUM_PAGELINK_FIRSTIMAGE_TEXT>"},
    {kImage, "<VANTORIUM_PAGELINK_FIRSTIMAGE_GRAPHIC>"},
    {kImage, "<VANTORIUM_PAGELINK_PREVIMAGE_TEXT>"},
    {kImage, "<VANTORIUM_PAGELINK_PREVIMAGE_GRAPHIC>"},
    {kImage, "<VANTORIUM_PAGELINK_NEXTIMAGE_TEXT>"},
    {kImage, "<VANTORIUM_PAGELINK_NEXTIMAGE_GRAPHIC>"},
    {kImage, "<VANTORIUM_PAGELINK_LASTIMAGE_TEXT>"},
    {kImage, "<VANTORIUM_PAGELINK_LASTIMAGE_GRAPHIC>"},
    {kImage, "<VANTORIUM_PAGELINK_INDEX_TEXT>"},
    {kImage, "<VANTORIUM_PAGELINK_INDEX_GRAPHIC>"},
    {kPage, "<VANTORIUM_PAGELINK_DIRECTTHUMBPAGE>"},
    {kPage, "<VANTORIUM_PAGELINK_FIRSTTHUMBPAGE_TEXT>"},
    {kPage, "<VANTORIUM_PAGELINK_FIRSTTHUMBPAGE_GRAPHIC>"},
    {kPage, "<VANTORIUM_PAGELINK_PREVTHUMBPAGE_TEXT>"},
    {kPage, "<VANTORIUM_PAGELINK_PREVTHUMBPAGE_GRAPHIC>"},
    {kPage, "<VANTORIUM_PAGELINK_NEXTTHUMBPAGE_TEXT>"},
    {kPage, "<VANTORIUM_PAGELINK_NEXTTHUMBPAGE_GRAPHIC>"},
    {kPage, "<VANTORIUM_PAGELINK_LASTTHUMBPAGE_TEXT>"},
    {kPage, "<VANTORIUM_PAGELINK_LASTTHUMBPAGE_GRAPHIC>"},
};

TEST(TagTable, HasEveryTagInTheOrderOfReplacement) {
  const auto rows = TagRows();
  ASSERT_EQ(rows.size(), 43U);
  ASSERT_EQ(rows.size(), std::size(kSpellings));
  for (std::size_t row = 0; row < rows.size(); ++row) {
    EXPECT_EQ(rows[row].tag, kSpellings[row].tag) << "row " << row + 1;
    EXPECT_EQ(rows[row].needs, kSpellings[row].needs) << rows[row].tag;
    EXPECT_NE(rows[row].value, nullptr) << rows[row].tag;
  }
}

TEST(TagTable, HasTheFourTagsOfDescriptions) {
  const auto rows = DescriptionTagRows();
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].tag, "<VANTORIUM_IMAGE_DESCRIPTION>");
  EXPECT_EQ(rows[0].fullTag, "<VANTORIUM_IMAGE_DESCRIPTION_FULL>");
  EXPECT_EQ(rows[1].tag, "<VANTORIUM_THUMB_DESCRIPTION>");
  EXPECT_EQ(rows[1].fullTag, "<VANTORIUM_THUMB_DESCRIPTION_FULL>");
}

}  // namespace
}  // namespace vantorium::generation
