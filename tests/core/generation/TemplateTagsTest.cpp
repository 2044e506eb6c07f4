#include "core/generation/TagTable.h"
#include "core/generation/TemplateTags.h"
#include "env/RuntimeFailure.h"
#include "env/Text.h"
#include "tests/core/generation/PageFixture.h"

namespace vantorium::tests {
namespace {

class TemplateTags : public PageTest {
 protected:
  /// Three images on three thumbnail pages.
  TemplateTags() {
    AddImage("first_one", "image text 1", "thumb text 1");
    AddImage("old_stone_bridge", "image text 2", "thumb text 2");
    AddImage("last", "image text 3", "thumb text 3");
    SetGrid("1", "1");
    Prepare();
    run.RunInfo[1].FileSize = "12KB";
    run.DirectLinksText = "1 2 3";
  }

  std::string Expand(std::string_view text, std::int32_t image = 2, std::int32_t page = 2) const {
    return generation::ExpandTags(run, text, image, page);
  }
  std::string ExpandAll(std::string_view text, std::int32_t image = 2, std::int32_t page = generation::kNoIndex) const {
    return generation::ExpandAllTags(run, text, image, page);
  }
  std::string Value(const std::string& name, std::int32_t image = 2, std::int32_t page = 2) const {
    return Expand("<VANTORIUM_" + name + ">", image, page);
  }
};

TEST_F(TemplateTags, ATextWithoutTagsIsUnchanged) {
  for (const std::string text :
       {"", "plain", "<B>bold</B>", "a_b_c", "_", "<VANTORIUM", "<VANTORIUM_", "<VANTORIUM_>", "VANTORIUM_IMAGE_INDEX>",
        "<VANTORIUM_IMAGE_INDEX", "< VANTORIUM_IMAGE_INDEX>", "<VANTORIUM_IMAGE_INDEX >", "<VANTORIUM_NO_SUCH_TAG>",
        "<VANTORIUM_IMAGE_INDEXES>", "{}", "{0}"}) {
    EXPECT_EQ(Expand(text), text);
    EXPECT_EQ(ExpandAll(text), text);
  }
}

TEST_F(TemplateTags, TagsOfAnImageGiveItsValues) {
  EXPECT_EQ(Value("IMAGE_INDEX"), "2");
  EXPECT_EQ(Value("IMAGE_TITLE"), "old stone bridge");
  EXPECT_EQ(Value("IMAGE_FILENAME"), "old_stone_bridge.JPG");
  EXPECT_EQ(Value("IMAGE_FILESIZE"), "12KB");
  EXPECT_EQ(Value("IMAGE_FILESIZE", 1), "0KB");
  EXPECT_EQ(Value("IMAGE_WIDTH"), "402");
  EXPECT_EQ(Value("IMAGE_HEIGHT"), "302");
  EXPECT_EQ(Value("THUMB_WIDTH"), "62");
  EXPECT_EQ(Value("THUMB_HEIGHT"), "47");
  EXPECT_EQ(Value("IMAGE_WIDTH_MAX"), "403");
  EXPECT_EQ(Value("IMAGE_HEIGHT_MAX"), "303");
  EXPECT_EQ(Value("THUMB_WIDTH_MAX"), "63");
  EXPECT_EQ(Value("THUMB_HEIGHT_MAX"), "48");
}

TEST_F(TemplateTags, TagsOfGalleryAndPageGiveTheirValues) {
  EXPECT_EQ(Value("IMAGE_COUNT"), "3");
  EXPECT_EQ(Value("THUMBPAGE_INDEX", 2, 3), "3");
  EXPECT_EQ(Value("THUMBPAGE_COUNT"), "3");
  EXPECT_EQ(Value("GALLERY_TITLE"), "Holidays");
  EXPECT_EQ(Value("PAGELINK_DIRECTTHUMBPAGE"), "1 2 3");
}

TEST_F(TemplateTags, DatesOfTheFileAreUtcInTheRegionalFormats) {
  const env::CivilTime midnight{.year = 2020, .month = 3, .day = 1};
  EXPECT_EQ(Value("IMAGE_FILEDATE_SHORT"), formats.Format(midnight, env::RegionalFormat::ShortDate));
  EXPECT_EQ(Value("IMAGE_FILEDATE_LONG"), formats.Format(midnight, env::RegionalFormat::LongDate));
  EXPECT_EQ(Value("IMAGE_FILETIME_SHORT"), formats.Format(midnight, env::RegionalFormat::ShortTime));
  EXPECT_EQ(Value("IMAGE_FILETIME_LONG"), formats.Format(midnight, env::RegionalFormat::LongTime));
  EXPECT_EQ(Value("IMAGE_FILEDATE_SHORT"), "01.03.20");
}

TEST_F(TemplateTags, CreationDatesAreThoseOfTheRun) {
  const env::CivilTime made = run.GalleryCreationTime;
  EXPECT_EQ(Value("GALLERY_CREATIONDATE_SHORT"), formats.Format(made, env::RegionalFormat::ShortDate));
  EXPECT_EQ(Value("GALLERY_CREATIONDATE_LONG"), formats.Format(made, env::RegionalFormat::LongDate));
  EXPECT_EQ(Value("GALLERY_CREATIONTIME_SHORT"), formats.Format(made, env::RegionalFormat::ShortTime));
  EXPECT_EQ(Value("GALLERY_CREATIONTIME_LONG"), formats.Format(made, env::RegionalFormat::LongTime));
  EXPECT_EQ(Value("GALLERY_CREATIONTIME_LONG"), "13:05:09");
}

TEST_F(TemplateTags, TextLinksAreAnchorLabelAndEndTag) {
  EXPECT_EQ(Value("PAGELINK_FIRSTIMAGE_TEXT"), R"(<A HREF="first_one.htm">FIRST</A>)");
  EXPECT_EQ(Value("PAGELINK_PREVIMAGE_TEXT"), R"(<A HREF="first_one.htm">BACK</A>)");
  EXPECT_EQ(Value("PAGELINK_NEXTIMAGE_TEXT"), R"(<A HREF="last.htm">NEXT</A>)");
  EXPECT_EQ(Value("PAGELINK_LASTIMAGE_TEXT"), R"(<A HREF="last.htm">LAST</A>)");
  EXPECT_EQ(Value("PAGELINK_INDEX_TEXT"), R"(<A HREF="thumbpage_2.htm#old_stone_bridge">INDEX</A>)");
  EXPECT_EQ(Value("PAGELINK_FIRSTTHUMBPAGE_TEXT"), R"(<A HREF="thumbpage_1.htm">FIRST</A>)");
  EXPECT_EQ(Value("PAGELINK_PREVTHUMBPAGE_TEXT"), R"(<A HREF="thumbpage_1.htm">BACK</A>)");
  EXPECT_EQ(Value("PAGELINK_NEXTTHUMBPAGE_TEXT"), R"(<A HREF="thumbpage_3.htm">NEXT</A>)");
  EXPECT_EQ(Value("PAGELINK_LASTTHUMBPAGE_TEXT"), R"(<A HREF="thumbpage_3.htm">LAST</A>)");
}

struct LinkTag {
  std::string name;
  core::LinkSettings core::GalleryProject::*link;
  std::string anchor;  // at image and page 2 of 3
  std::string graphic;
};

const LinkTag kLinkTags[] = {
    {"FIRSTIMAGE", &core::GalleryProject::ImageFirstLink, R"(<A HREF="first_one.htm">)", "_imagelink_first"},
    {"PREVIMAGE", &core::GalleryProject::ImagePreviousLink, R"(<A HREF="first_one.htm">)", "_imagelink_previous"},
    {"NEXTIMAGE", &core::GalleryProject::ImageNextLink, R"(<A HREF="last.htm">)", "_imagelink_next"},
    {"LASTIMAGE", &core::GalleryProject::ImageLastLink, R"(<A HREF="last.htm">)", "_imagelink_last"},
    {"INDEX", &core::GalleryProject::ImageIndexLink, R"(<A HREF="thumbpage_2.htm#old_stone_bridge">)",
     "_imagelink_index"},
    {"FIRSTTHUMBPAGE", &core::GalleryProject::ThumbnailFirstLink, R"(<A HREF="thumbpage_1.htm">)", "_thumblink_first"},
    {"PREVTHUMBPAGE", &core::GalleryProject::ThumbnailPreviousLink, R"(<A HREF="thumbpage_1.htm">)",
     "_thumblink_previous"},
    {"NEXTTHUMBPAGE", &core::GalleryProject::ThumbnailNextLink, R"(<A HREF="thumbpage_3.htm">)", "_thumblink_next"},
    {"LASTTHUMBPAGE", &core::GalleryProject::ThumbnailLastLink, R"(<A HREF="thumbpage_3.htm">)", "_thumblink_last"},
};

TEST_F(TemplateTags, GraphicLinksAreAnchorImageAndEndTag) {
  for (const LinkTag& tag : kLinkTags) {
    (project.*tag.link).textLinkGraphic = "C:\\buttons\\b.gif";
    EXPECT_EQ(Value("PAGELINK_" + tag.name + "_GRAPHIC"),
              tag.anchor + R"(<IMG SRC="Images/)" + tag.graphic + R"(.gif" BORDER="0" ALIGN="MIDDLE"></A>)");
  }
}

TEST_F(TemplateTags, ALinkWithoutTextOrGraphicIsRemoved) {
  for (const LinkTag& tag : kLinkTags) {
    EXPECT_EQ(Value("PAGELINK_" + tag.name + "_GRAPHIC"), "") << tag.name;
    if (tag.name == "NEXTIMAGE") continue;  // has its own rule
    (project.*tag.link).textLinkLabel.clear();
    EXPECT_EQ(Value("PAGELINK_" + tag.name + "_TEXT"), "") << tag.name;
  }
}

TEST_F(TemplateTags, TheTextFormOfNextWithoutALabelRemovesTheGraphicFormInstead) {
  project.ImageNextLink = {"", "next.gif", "end.gif"};
  EXPECT_EQ(Expand("a<VANTORIUM_PAGELINK_NEXTIMAGE_TEXT>b<VANTORIUM_PAGELINK_NEXTIMAGE_GRAPHIC>c"),
            "a<VANTORIUM_PAGELINK_NEXTIMAGE_TEXT>bc");
  EXPECT_EQ(Value("PAGELINK_NEXTIMAGE_GRAPHIC"), "");
  EXPECT_EQ(Expand("a<vantorium_pagelink_nextimage_graphic>c"), "ac");
  EXPECT_EQ(Value("PAGELINK_NEXTIMAGE_TEXT"), "<VANTORIUM_PAGELINK_NEXTIMAGE_TEXT>");
  project.ImageNextLink.textLinkLabel = "NEXT";
  EXPECT_NE(Value("PAGELINK_NEXTIMAGE_GRAPHIC"), "");
}

TEST_F(TemplateTags, AGraphicTagOfNextThatTheRemovalCreatesIsReplacedByItsRow) {
  project.ImageNextLink = {"", "next.gif", ""};
  EXPECT_EQ(Expand("<VANTORIUM_PAGELINK_NEXT<VANTORIUM_PAGELINK_NEXTIMAGE_GRAPHIC>IMAGE_GRAPHIC>"),
            R"(<A HREF="last.htm"><IMG SRC="Images/_imagelink_next.gif" BORDER="0" ALIGN="MIDDLE"></A>)");
}

TEST_F(TemplateTags, AtTheEndsTheAnchorIsEmptyAndItsEndTagStays) {
  EXPECT_EQ(Value("PAGELINK_PREVIMAGE_TEXT", 1), "BACK</A>");
  EXPECT_EQ(Value("PAGELINK_FIRSTIMAGE_TEXT", 1), "FIRST</A>");
  EXPECT_EQ(Value("PAGELINK_NEXTIMAGE_TEXT", 3), "NEXT</A>");
  EXPECT_EQ(Value("PAGELINK_LASTTHUMBPAGE_TEXT", 1, 3), "LAST</A>");
  project.ImagePreviousLink.textLinkGraphic = "b.gif";
  project.ImagePreviousLink.textLinkGraphicDisabled = "grey.png";
  EXPECT_EQ(Value("PAGELINK_PREVIMAGE_GRAPHIC", 1),
            R"(<IMG SRC="Images/_imagelink_previous_first.png" BORDER="0" ALIGN="MIDDLE"></A>)");
}

TEST_F(TemplateTags, InAGalleryOfOneImageOnlyTheIndexKeepsItsAnchor) {
  run.ImageCount = 1;
  project.ImageNextLink.textLinkGraphic = "n.gif";
  project.ImageIndexLink.textLinkGraphic = "i.gif";
  EXPECT_EQ(Value("PAGELINK_NEXTIMAGE_TEXT", 1), "NEXT</A>");
  EXPECT_EQ(Value("PAGELINK_NEXTIMAGE_GRAPHIC", 1), "</A>");
  EXPECT_EQ(Value("PAGELINK_INDEX_TEXT", 1), R"(<A HREF="thumbpage_1.htm#first_one">INDEX</A>)");
  EXPECT_EQ(Value("PAGELINK_INDEX_GRAPHIC", 1), R"(<A HREF="thumbpage_1.htm#first_one"></A>)");
}

TEST_F(TemplateTags, TagsWithoutTheirIndexStay) {
  for (const generation::TagRow& row : generation::TagRows()) {
    const std::string tag(row.tag);
    if (row.needs == generation::TagNeeds::Image) {
      EXPECT_EQ(Expand(tag, generation::kNoIndex, 2), tag);
    } else if (row.needs == generation::TagNeeds::Page) {
      EXPECT_EQ(Expand(tag, 2, generation::kNoIndex), tag);
    } else {
      EXPECT_NE(Expand(tag, generation::kNoIndex, generation::kNoIndex), tag);
    }
  }
}

TEST_F(TemplateTags, EveryTagWithItsIndexIsReplacedInAnyCaseWhereverItOccurs) {
  for (core::LinkSettings core::GalleryProject::*link :
       {&core::GalleryProject::ImageNextLink, &core::GalleryProject::ImageIndexLink}) {
    (project.*link).textLinkGraphic = "x.gif";
  }
  for (const generation::TagRow& row : generation::TagRows()) {
    const std::string value = Expand(row.tag);
    EXPECT_NE(value, row.tag);
    const std::string text = "a" + env::AsciiLower(row.tag) + "<" + std::string(row.tag) + ">" +
                             env::AsciiLower(row.tag.substr(0, 9)) + std::string(row.tag.substr(9));
    EXPECT_EQ(Expand(text), "a" + value + "<" + value + ">" + value) << text;
  }
}

TEST_F(TemplateTags, OnlyAsciiLettersAreFolded) {
  EXPECT_EQ(Expand("<VANTOR\xC4\xB0UM_IMAGE_INDEX>"), "<VANTOR\xC4\xB0UM_IMAGE_INDEX>");
  EXPECT_EQ(Expand("<VANTORIUM_\xC4\xB1MAGE_INDEX>"), "<VANTORIUM_\xC4\xB1MAGE_INDEX>");
}

TEST_F(TemplateTags, ATagInAValueIsReplacedIfItsRowFollows) {
  project.textGalleryTitle = "<VANTORIUM_GALLERY_CREATIONTIME_LONG>, <VANTORIUM_IMAGE_COUNT>, <VANTORIUM_IMAGE_INDEX>";
  EXPECT_EQ(Value("GALLERY_TITLE"), "13:05:09, <VANTORIUM_IMAGE_COUNT>, <VANTORIUM_IMAGE_INDEX>");
  project.ImageFirstLink.textLinkLabel = "<VANTORIUM_PAGELINK_LASTIMAGE_TEXT>";
  EXPECT_EQ(Value("PAGELINK_FIRSTIMAGE_TEXT"), R"(<A HREF="first_one.htm"><A HREF="last.htm">LAST</A></A>)");
}

TEST_F(TemplateTags, AValueIsNotSearchedAgainForItsTag) {
  project.textGalleryTitle = "[<VANTORIUM_GALLERY_TITLE>]";
  EXPECT_EQ(Value("GALLERY_TITLE"), "[<VANTORIUM_GALLERY_TITLE>]");
}

TEST_F(TemplateTags, ATagFormedByAValueAndItsSurroundingsIsReplacedByALaterRow) {
  project.textGalleryTitle = "PAGELINK_INDEX";
  EXPECT_EQ(Expand("<VANTORIUM_<VANTORIUM_GALLERY_TITLE>_TEXT>"),
            R"(<A HREF="thumbpage_2.htm#old_stone_bridge">INDEX</A>)");
  project.textGalleryTitle = "IMAGE";
  EXPECT_EQ(Expand("<VANTORIUM_<VANTORIUM_GALLERY_TITLE>_INDEX>"), "<VANTORIUM_IMAGE_INDEX>");
}

TEST_F(TemplateTags, ValuesAreComputedOnlyForTagsThatOccur) {
  SetGrid("0", "0");
  EXPECT_EQ(Value("IMAGE_INDEX"), "2");
  for (const std::string name : {"PAGELINK_INDEX_TEXT", "PAGELINK_INDEX_GRAPHIC"}) {
    project.ImageIndexLink.textLinkGraphic = "i.gif";
    try {
      const std::string value = Value(name);
      ADD_FAILURE() << name << " gave " << value;
    } catch (const env::RuntimeFailure& failure) {
      EXPECT_EQ(failure.Number(), static_cast<std::int32_t>(env::FailureKind::DivisionByZero));
    }
  }
}

TEST_F(TemplateTags, ManyOpenTagsDoNotTakeLong) {
  std::string text;
  for (int count = 0; count < 200'000; ++count) text += "<VANTORIUM_";
  EXPECT_EQ(Expand(text), text);
}

TEST_F(TemplateTags, DescriptionTagsGiveTheDescriptionWithAndWithoutHeaderAndFooter) {
  project.textHeader = "[<VANTORIUM_IMAGE_INDEX>:";
  project.textFooter = "]";
  project.textThumbHeader = "(";
  project.textThumbFooter = ":<VANTORIUM_IMAGE_COUNT>)";
  EXPECT_EQ(ExpandAll("<VANTORIUM_IMAGE_DESCRIPTION>"), "image text 2");
  EXPECT_EQ(ExpandAll("<VANTORIUM_IMAGE_DESCRIPTION_FULL>"), "[2:image text 2]");
  EXPECT_EQ(ExpandAll("<VANTORIUM_THUMB_DESCRIPTION>"), "thumb text 2");
  EXPECT_EQ(ExpandAll("<VANTORIUM_THUMB_DESCRIPTION_FULL>"), "(thumb text 2:3)");
  EXPECT_EQ(ExpandAll("<vantorium_thumb_description>/<Vantorium_Image_Description>"), "thumb text 2/image text 2");
}

TEST_F(TemplateTags, DescriptionTagsAreReplacedOnlyInTheSecondStep) {
  EXPECT_EQ(Expand("<VANTORIUM_IMAGE_DESCRIPTION>"), "<VANTORIUM_IMAGE_DESCRIPTION>");
  EXPECT_EQ(generation::ExpandDescriptionTags(run, "<VANTORIUM_IMAGE_INDEX>", 2, 2), "<VANTORIUM_IMAGE_INDEX>");
}

TEST_F(TemplateTags, ADescriptionIsExpandedWithImageAndPageOfItsPlace) {
  images.SetImageDescription(2, "no. <VANTORIUM_IMAGE_INDEX> page <VANTORIUM_THUMBPAGE_INDEX>");
  EXPECT_EQ(ExpandAll("<VANTORIUM_IMAGE_DESCRIPTION>", 2, 2), "no. 2 page 2");
  EXPECT_EQ(ExpandAll("<VANTORIUM_IMAGE_DESCRIPTION>", 2, generation::kNoIndex),
            "no. 2 page <VANTORIUM_THUMBPAGE_INDEX>");
}

TEST_F(TemplateTags, ADescriptionKeepsItsOwnTag) {
  images.SetImageDescription(2, "a <VANTORIUM_IMAGE_DESCRIPTION> b");
  EXPECT_EQ(ExpandAll("<VANTORIUM_IMAGE_DESCRIPTION>"), "a <VANTORIUM_IMAGE_DESCRIPTION> b");
}

TEST_F(TemplateTags, ALaterDescriptionTagInADescriptionIsReplaced) {
  images.SetImageDescription(2, "see <VANTORIUM_THUMB_DESCRIPTION>");
  images.SetThumbnailDescription(2, "not <VANTORIUM_IMAGE_DESCRIPTION>");
  EXPECT_EQ(ExpandAll("<VANTORIUM_IMAGE_DESCRIPTION>"), "see not <VANTORIUM_IMAGE_DESCRIPTION>");
  images.SetImageDescription(2, "<VANTORIUM_IMAGE_DESCRIPTION_FULL>");
  project.textHeader = "h";
  EXPECT_EQ(ExpandAll("<VANTORIUM_IMAGE_DESCRIPTION>"), "h<VANTORIUM_IMAGE_DESCRIPTION_FULL>");
}

TEST_F(TemplateTags, DescriptionTagsStayWithoutAnImage) {
  EXPECT_EQ(ExpandAll("<VANTORIUM_IMAGE_DESCRIPTION>", generation::kNoIndex, 1), "<VANTORIUM_IMAGE_DESCRIPTION>");
}

TEST_F(TemplateTags, ATextThatWouldGrowWithoutLimitIsOutOfMemory) {
  const auto many = [](std::string_view tag) {
    std::string tags;
    for (int i = 0; i < 100; ++i) tags += tag;
    return tags;
  };
  project.textGalleryTitle = many("<VANTORIUM_PAGELINK_FIRSTIMAGE_TEXT>");
  project.ImageFirstLink.textLinkLabel = many("<VANTORIUM_PAGELINK_NEXTIMAGE_TEXT>");
  project.ImageNextLink.textLinkLabel = many("<VANTORIUM_PAGELINK_INDEX_TEXT>");
  EXPECT_THROW(Expand(many("<VANTORIUM_GALLERY_TITLE>")), std::bad_alloc);
  images.SetImageDescription(2, std::string(generation::kLongestExpandedText / 100, 'x'));
  EXPECT_THROW(ExpandAll(many("<VANTORIUM_IMAGE_DESCRIPTION>")), std::bad_alloc);
  project.textGalleryTitle = std::string(generation::kLongestExpandedText / 200, 'x');
  EXPECT_EQ(Expand(many("<VANTORIUM_GALLERY_TITLE>")).size(), project.textGalleryTitle.size() * 100);
}

}  // namespace
}  // namespace vantorium::tests
