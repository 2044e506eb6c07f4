#include "core/generation/TagTable.h"
#include "ui/model/main/TagMenu.h"

#include <set>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

std::set<std::string_view> KnownTags() {
  std::set<std::string_view> tags;
  for (const generation::TagRow& row : generation::TagRows()) tags.insert(row.tag);
  for (const generation::DescriptionTags& row : generation::DescriptionTagRows()) tags.insert({row.tag, row.fullTag});
  return tags;
}

TEST(TagMenu, HasEveryTagOfPagesOnceAndNoOther) {
  std::set<std::string_view> offered;
  for (const TagMenu& menu : TagMenus()) {
    for (const TagMenuEntry& entry : menu.entries) {
      EXPECT_EQ(entry.caption.empty(), entry.tag.empty()) << menu.name;
      if (!entry.tag.empty()) {
        EXPECT_TRUE(offered.insert(entry.tag).second) << entry.tag;
      }
    }
  }
  EXPECT_EQ(offered, KnownTags());
}

TEST(TagMenu, TheShortListForTextFieldsHasOnlyTagsOfPages) {
  ASSERT_EQ(PopupTextTags().size(), 5U);
  for (const TagMenuEntry& entry : PopupTextTags()) EXPECT_TRUE(KnownTags().contains(entry.tag)) << entry.caption;
}

TEST(TagMenu, HasFourMenus) {
  struct Case {
    const char* name;
    const char* caption;
    std::size_t entries;
  };
  const Case cases[] = {{"mnuEditTagsGallery", "Gallery Tags", 5},
                        {"mnuEditTagsImage", "Image Tags", 15},
                        {"mnuEditTagsThumbnail", "Thumbnail Tags", 8},
                        {"mnuEditTagsLinks", "Page Link Tags", 21}};
  ASSERT_EQ(TagMenus().size(), std::size(cases));
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    EXPECT_EQ(TagMenus()[i].name, cases[i].name);
    EXPECT_EQ(TagMenus()[i].caption, cases[i].caption);
    EXPECT_EQ(TagMenus()[i].entries.size(), cases[i].entries) << cases[i].name;
  }
}

TEST(TagMenu, EachEntryIsAtItsIndex) {
  struct Case {
    std::size_t menu;
    std::size_t index;
    const char* caption;
    const char* tag;
  };
  const Case cases[] = {
      {0, 0, "Gallery Creation Date (long)", "<VANTORIUM_GALLERY_CREATIONDATE_LONG>"},
      {0, 1, "Gallery Creation Date (short)", "<VANTORIUM_GALLERY_CREATIONDATE_SHORT>"},
      {0, 2, "Gallery Creation Time (long)", "<VANTORIUM_GALLERY_CREATIONTIME_LONG>"},
      {0, 3, "Gallery Creation Time (short)", "<VANTORIUM_GALLERY_CREATIONTIME_SHORT>"},
      {0, 4, "Gallery Title", "<VANTORIUM_GALLERY_TITLE>"},
      {1, 0, "Image Count", "<VANTORIUM_IMAGE_COUNT>"},
      {1, 1, "Image File Date (long)", "<VANTORIUM_IMAGE_FILEDATE_LONG>"},
      {1, 2, "Image File Date (short)", "<VANTORIUM_IMAGE_FILEDATE_SHORT>"},
      {1, 3, "Image File Time (long)", "<VANTORIUM_IMAGE_FILETIME_LONG>"},
      {1, 4, "Image File Time (short)", "<VANTORIUM_IMAGE_FILETIME_SHORT>"},
      {1, 5, "Image File Name", "<VANTORIUM_IMAGE_FILENAME>"},
      {1, 6, "Image File Size", "<VANTORIUM_IMAGE_FILESIZE>"},
      {1, 7, "Image Title", "<VANTORIUM_IMAGE_TITLE>"},
      {1, 8, "Image Index", "<VANTORIUM_IMAGE_INDEX>"},
      {1, 9, "Image Width", "<VANTORIUM_IMAGE_WIDTH>"},
      {1, 10, "Image Height", "<VANTORIUM_IMAGE_HEIGHT>"},
      {1, 11, "Image Width Maximum", "<VANTORIUM_IMAGE_WIDTH_MAX>"},
      {1, 12, "Image Height Maximum", "<VANTORIUM_IMAGE_HEIGHT_MAX>"},
      {1, 13, "Image Description", "<VANTORIUM_IMAGE_DESCRIPTION>"},
      {1, 14, "Image Description (full)", "<VANTORIUM_IMAGE_DESCRIPTION_FULL>"},
      {2, 0, "Thumbnail Page Count", "<VANTORIUM_THUMBPAGE_COUNT>"},
      {2, 1, "Thumbnail Page Index", "<VANTORIUM_THUMBPAGE_INDEX>"},
      {2, 2, "Thumbnail Width", "<VANTORIUM_THUMB_WIDTH>"},
      {2, 3, "Thumbnail Height", "<VANTORIUM_THUMB_HEIGHT>"},
      {2, 4, "Thumbnail Width Maximum", "<VANTORIUM_THUMB_WIDTH_MAX>"},
      {2, 5, "Thumbnail Height Maximum", "<VANTORIUM_THUMB_HEIGHT_MAX>"},
      {2, 6, "Thumbnail Description", "<VANTORIUM_THUMB_DESCRIPTION>"},
      {2, 7, "Thumbnail Description (full)", "<VANTORIUM_THUMB_DESCRIPTION_FULL>"},
      {3, 0, "First Image", "<VANTORIUM_PAGELINK_FIRSTIMAGE_TEXT>"},
      {3, 1, "Previous Image", "<VANTORIUM_PAGELINK_PREVIMAGE_TEXT>"},
      {3, 2, "Next Image", "<VANTORIUM_PAGELINK_NEXTIMAGE_TEXT>"},
      {3, 3, "Last Image", "<VANTORIUM_PAGELINK_LASTIMAGE_TEXT>"},
      {3, 4, "Index Page", "<VANTORIUM_PAGELINK_INDEX_TEXT>"},
      {3, 5, "First Image (Graphic)", "<VANTORIUM_PAGELINK_FIRSTIMAGE_GRAPHIC>"},
      {3, 6, "Previous Image (Graphic)", "<VANTORIUM_PAGELINK_PREVIMAGE_GRAPHIC>"},
      {3, 7, "Next Image (Graphic)", "<VANTORIUM_PAGELINK_NEXTIMAGE_GRAPHIC>"},
      {3, 8, "Last Image (Graphic)", "<VANTORIUM_PAGELINK_LASTIMAGE_GRAPHIC>"},
      {3, 9, "Index Page (Graphic)", "<VANTORIUM_PAGELINK_INDEX_GRAPHIC>"},
      {3, 10, "", ""},
      {3, 11, "First Thumbnail Page", "<VANTORIUM_PAGELINK_FIRSTTHUMBPAGE_TEXT>"},
      {3, 12, "Previous Thumbnail Page", "<VANTORIUM_PAGELINK_PREVTHUMBPAGE_TEXT>"},
      {3, 13, "Next Thumbnail Page", "<VANTORIUM_PAGELINK_NEXTTHUMBPAGE_TEXT>"},
      {3, 14, "Last Thumbnail Page", "<VANTORIUM_PAGELINK_LASTTHUMBPAGE_TEXT>"},
      {3, 15, "First Thumbnail Page (Graphic)", "<VANTORIUM_PAGELINK_FIRSTTHUMBPAGE_GRAPHIC>"},
      {3, 16, "Previous Thumbnail Page (Graphic)", "<VANTORIUM_PAGELINK_PREVTHUMBPAGE_GRAPHIC>"},
      {3, 17, "Next Thumbnail Page (Graphic)", "<VANTORIUM_PAGELINK_NEXTTHUMBPAGE_GRAPHIC>"},
      {3, 18, "Last Thumbnail Page (Graphic)", "<VANTORIUM_PAGELINK_LASTTHUMBPAGE_GRAPHIC>"},
      {3, 19, "", ""},
      {3, 20, "Direct Thumbnail Page Links", "<VANTORIUM_PAGELINK_DIRECTTHUMBPAGE>"},
  };
  for (const Case& c : cases) {
    const TagMenuEntry& entry = TagMenus()[c.menu].entries[c.index];
    EXPECT_EQ(entry.caption, c.caption) << c.menu << " " << c.index;
    EXPECT_EQ(entry.tag, c.tag) << c.menu << " " << c.index;
  }
}

}  // namespace
}  // namespace vantorium::ui
