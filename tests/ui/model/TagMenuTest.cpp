#include "core/generation/TagTable.h"
#include "ui/model/TagMenu.h"

#include <set>

#include <gtest/gtest.h>

namespace vantorium {
namespace {

std::set<std::string_view> KnownTags() {
  std::set<std::string_view> tags;
  for (const TagRow& row : TagRows()) tags.insert(row.tag);
  for (const DescriptionTags& row : DescriptionTagRows()) tags.insert({row.tag, row.fullTag});
  return tags;
}

TEST(TagMenu, HoldsEveryTagThatPagesReplaceOnceAndNoOther) {
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

TEST(TagMenu, HasFourMenusOfTheirSizes) {
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

TEST(TagMenu, EntriesStandAtTheirIndexes) {
  struct Case {
    std::size_t menu;
    std::size_t index;
    const char* caption;
    const char* tag;
  };
  const Case cases[] = {
      {0, 0, "Gallery Creation Date (long)", "<VANTORIUM_GALLERY_CREATIONDATE_LONG>"},
      {0, 4, "Gallery Title", "<VANTORIUM_GALLERY_TITLE>"},
      {1, 0, "Image Count", "<VANTORIUM_IMAGE_COUNT>"},
      {1, 8, "Image Index", "<VANTORIUM_IMAGE_INDEX>"},
      {1, 14, "Image Description (full)", "<VANTORIUM_IMAGE_DESCRIPTION_FULL>"},
      {2, 1, "Thumbnail Page Index", "<VANTORIUM_THUMBPAGE_INDEX>"},
      {2, 7, "Thumbnail Description (full)", "<VANTORIUM_THUMB_DESCRIPTION_FULL>"},
      {3, 0, "First Image", "<VANTORIUM_PAGELINK_FIRSTIMAGE_TEXT>"},
      {3, 9, "Index Page (Graphic)", "<VANTORIUM_PAGELINK_INDEX_GRAPHIC>"},
      {3, 10, "", ""},
      {3, 11, "First Thumbnail Page", "<VANTORIUM_PAGELINK_FIRSTTHUMBPAGE_TEXT>"},
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
}  // namespace vantorium
