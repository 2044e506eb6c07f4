#include "core/Choices.h"
#include "core/ProjectFields.h"

#include <initializer_list>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

namespace vantorium::core {
namespace {

TEST(Choices, AFlagIsOnAtOneOffAtZeroAndOtherwiseNeither) {
  EXPECT_TRUE(IsOn(1));
  EXPECT_FALSE(IsOff(1));
  EXPECT_FALSE(IsOn(0));
  EXPECT_TRUE(IsOff(0));
  for (const Flag other : std::initializer_list<Flag>{-32768, -1, 2, 32767}) {
    EXPECT_FALSE(IsOn(other)) << other;
    EXPECT_FALSE(IsOff(other)) << other;
  }
  EXPECT_EQ(FlagOf(true), 1);
  EXPECT_EQ(FlagOf(false), 0);
}

TEST(Choices, NumbersAreIndexesOfTheTextsOfTheField) {
  struct Case {
    Choice GalleryProject::*field;
    Choice number;
    std::string_view text;
  };
  using P = GalleryProject;
  const Case cases[] = {
      {&P::comboGalleryLayoutType, NumberOf(GalleryLayout::SingleFrame), "single frame"},
      {&P::comboGalleryLayoutType, NumberOf(GalleryLayout::ThumbnailsLeft), "thumbnail frame left"},
      {&P::comboGalleryLayoutType, NumberOf(GalleryLayout::ThumbnailsBottom), "thumbnail frame bottom"},
      {&P::comboGalleryFrameSizingPriority, NumberOf(SizedFrame::Image),
       "set image frame size, thumbnail frame follows"},
      {&P::comboGallerySlideShowBeginWith, NumberOf(SlideShowBegin::FirstImage), "first image"},
      {&P::comboGallerySlideShowActionAfterImage, NumberOf(SlideShowAction::FirstThumbnailPage),
       "back to first thumbnail page"},
      {&P::comboGallerySlideShowStartOverWith, NumberOf(SlideShowStartOver::Stop), "stop"},
      {&P::comboImagesSortingOrder, NumberOf(SortingOrder::Unsorted), "unsorted"},
      {&P::comboImagesSortingOrder, NumberOf(SortingOrder::PathDescending), "sort by path (desc)"},
      {&P::comboImagesSortingOrder, NumberOf(SortingOrder::DateDescending), "sort by date/time (desc)"},
      {&P::comboThumbnailsTableAlignment, NumberOf(TableAlignment::Right), "right"},
      {&P::comboCaptionsImagesRegularPlacement, CaptionNumberOf(Placement::Left), "place left to image"},
      {&P::comboCaptionsImagesRegularPlacement, CaptionNumberOf(Placement::Below), "place below image"},
      {&P::comboCaptionsImagesRegularAlignment, NumberOf(Alignment::End), "align bottom"},
      {&P::comboImageDescriptionPlacement, NumberOf(Placement::None), "no automatic placement"},
      {&P::comboImageDescriptionPlacement, NumberOf(Placement::Below), "place below image"},
      {&P::comboPageLinksImageLinkPlacement, NumberOf(LinkPlacement::Both), "above and below image"},
  };
  for (const Case& c : cases) {
    const ValueList texts = FieldOf(c.field).values;
    ASSERT_LT(static_cast<std::size_t>(c.number), texts.size()) << c.text;
    EXPECT_EQ(texts[static_cast<std::size_t>(c.number)], c.text);
  }
}

TEST(Choices, PlacementsAreNoneBesideAboveOrBelow) {
  for (Choice setting = -1; setting <= 5; ++setting) {
    const Placement placement = DescriptionPlacement(setting);
    EXPECT_EQ(IsBeside(placement), setting == 1 || setting == 2) << setting;
    EXPECT_EQ(IsAboveOrBelow(placement), setting == 3 || setting == 4) << setting;
    EXPECT_EQ(CaptionPlacement(static_cast<Choice>(setting - 1)), placement) << setting;
  }
}

TEST(Choices, LinkPlacementsAreSetsOfBars) {
  EXPECT_FALSE(HasBarAbove(LinkPlacement::None) || HasBarBelow(LinkPlacement::None));
  EXPECT_TRUE(HasBarAbove(LinkPlacement::Above) && !HasBarBelow(LinkPlacement::Above));
  EXPECT_TRUE(!HasBarAbove(LinkPlacement::Below) && HasBarBelow(LinkPlacement::Below));
  EXPECT_TRUE(HasBarAbove(LinkPlacement::Both) && HasBarBelow(LinkPlacement::Both));
}

TEST(Choices, OnlyASingleFrameHasASlideShow) {
  GalleryProject project;
  EXPECT_FALSE(HasSlideShow(project));
  project.checkGallerySlideShow = kOn;
  EXPECT_TRUE(HasSlideShow(project));
  for (const auto layout : {GalleryLayout::ThumbnailsLeft, GalleryLayout::ThumbnailsRight, GalleryLayout::ThumbnailsTop,
                            GalleryLayout::ThumbnailsBottom}) {
    project.comboGalleryLayoutType = NumberOf(layout);
    EXPECT_FALSE(HasSlideShow(project)) << NumberOf(layout);
  }
}

TEST(Choices, ASlideShowStartsAutomaticallyOnlyFromAThumbnailPage) {
  GalleryProject project;
  EXPECT_FALSE(StartsByItself(project)) << "a new project begins with the first image";
  project.comboGallerySlideShowBeginWith = NumberOf(SlideShowBegin::FirstThumbnailPage);
  EXPECT_TRUE(StartsByItself(project));
  project.checkGallerySlideShowAutoStart = kOff;
  EXPECT_FALSE(StartsByItself(project));
}

}  // namespace
}  // namespace vantorium::core
