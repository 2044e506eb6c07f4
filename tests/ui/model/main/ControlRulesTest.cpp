#include "ui/model/main/ControlRules.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

bool Holds(std::string_view control, const core::GalleryProject& project) {
  for (const ControlRule& rule : ControlRules()) {
    if (rule.control == control) return rule.holds(project);
  }
  ADD_FAILURE() << "no rule for " << control;
  return false;
}

/// "SWH" for the SetWidth box, width and height, with a dot for each that is hidden.
std::string SizeControls(const std::string& page, const core::GalleryProject& project) {
  std::string shown;
  shown += Holds("check" + page + "ImageSetWidth", project) ? 'S' : '.';
  shown += Holds("text" + page + "ImageWidth", project) ? 'W' : '.';
  shown += Holds("text" + page + "ImageHeight", project) ? 'H' : '.';
  EXPECT_EQ(Holds("lbl" + page + "ImageWidth", project), Holds("text" + page + "ImageWidth", project));
  EXPECT_EQ(Holds("ud" + page + "ImageWidth", project), Holds("text" + page + "ImageWidth", project));
  EXPECT_EQ(Holds("lbl" + page + "ImageHeight", project), Holds("text" + page + "ImageHeight", project));
  EXPECT_EQ(Holds("ud" + page + "ImageHeight", project), Holds("text" + page + "ImageHeight", project));
  return shown;
}

TEST(ControlRules, NameEachControlOncePerProperty) {
  std::set<std::pair<std::string_view, ControlProperty>> seen;
  for (const ControlRule& rule : ControlRules()) {
    EXPECT_TRUE(seen.insert({rule.control, rule.property}).second) << rule.control;
  }
}

TEST(ControlRules, WithoutAnAspectRatioBothSizesAreShownAndSetWidthIsHidden) {
  for (const core::Flag setWidth : {core::Flag{0}, core::Flag{1}}) {
    core::GalleryProject project;
    project.checkImageWrapperImageKeepAspectRatio = 0;
    project.checkImageWrapperImageSetWidth = setWidth;
    project.checkThumbnailsImageKeepAspectRatio = 0;
    project.checkThumbnailsImageSetWidth = setWidth;
    EXPECT_EQ(SizeControls("ImageWrapper", project), ".WH") << setWidth;
    EXPECT_EQ(SizeControls("Thumbnails", project), ".WH") << setWidth;
  }
}

TEST(ControlRules, WithAnAspectRatioOnlyOneSizeIsShown) {
  for (const core::Flag setWidth : {core::Flag{0}, core::Flag{1}}) {
    core::GalleryProject project;
    project.checkImageWrapperImageKeepAspectRatio = 1;
    project.checkImageWrapperImageSetWidth = setWidth;
    project.checkThumbnailsImageKeepAspectRatio = 1;
    project.checkThumbnailsImageSetWidth = setWidth;
    const std::string expected = setWidth == 1 ? "SW." : "S.H";
    EXPECT_EQ(SizeControls("ImageWrapper", project), expected) << setWidth;
    EXPECT_EQ(SizeControls("Thumbnails", project), expected) << setWidth;
  }
}

TEST(ControlRules, OnlyTheSingleFrameHasASlideShowAndAnIndexLink) {
  for (core::Choice layout = 0; layout <= 4; ++layout) {
    core::GalleryProject project;
    project.comboGalleryLayoutType = layout;
    EXPECT_EQ(Holds("frmFrameLayoutSingleFrame", project), layout == 0) << layout;
    EXPECT_EQ(Holds("frmFrameLayoutMultipleFrames", project), layout != 0) << layout;
    EXPECT_EQ(Holds("btnPageLinksImageIndexLink", project), layout == 0) << layout;
    EXPECT_EQ(LayoutPicture(project), layout + 1);
  }
}

TEST(ControlRules, TheSlideShowShowsOnlySettingsThatItsChoicesUse) {
  core::GalleryProject project;
  EXPECT_FALSE(Holds("frmFrameLayoutSlideShow", project));
  project.checkGallerySlideShow = 1;
  EXPECT_TRUE(Holds("frmFrameLayoutSlideShow", project));
  for (const char* control : {"checkGallerySlideShowAutoStart", "textGallerySlideShowAutoStartDelay",
                              "udGallerySlideShowAutoStartDelay", "lblSeconds"}) {
    project.comboGallerySlideShowBeginWith = 1;
    EXPECT_FALSE(Holds(control, project)) << control;
    project.comboGallerySlideShowBeginWith = 0;
    EXPECT_TRUE(Holds(control, project)) << control;
  }
  for (const char* control : {"comboGallerySlideShowStartOverWith", "lblFrameLayoutSlideShowStartOverWith"}) {
    for (core::Choice action = 0; action <= 2; ++action) {
      project.comboGallerySlideShowActionAfterImage = action;
      EXPECT_EQ(Holds(control, project), action == 0) << control << action;
    }
  }
}

TEST(ControlRules, WithoutWrapperPagesTheirFramesAreHidden) {
  core::GalleryProject project;
  for (const char* frame : {"frmImageWrapperCodeSettings", "frmImageWrapperImageSettings", "frmPageLinksOnImagePages",
                            "frmCaptionsImages"}) {
    project.checkImageWrapperUse = 1;
    EXPECT_TRUE(Holds(frame, project)) << frame;
    project.checkImageWrapperUse = 0;
    EXPECT_FALSE(Holds(frame, project)) << frame;
  }
}

TEST(ControlRules, ACheckBoxEnablesItsControls) {
  struct Case {
    core::Flag core::GalleryProject::*flag;
    const char* control;
  };
  const Case cases[] = {
      {&core::GalleryProject::checkCaptionsImagesRegular, "btnCaptionsImagesRegular"},
      {&core::GalleryProject::checkCaptionsImagesRegular, "comboCaptionsImagesRegularPlacement"},
      {&core::GalleryProject::checkCaptionsImagesRegular, "comboCaptionsImagesRegularAlignment"},
      {&core::GalleryProject::checkCaptionsImagesPopup, "btnCaptionsImagesPopup"},
      {&core::GalleryProject::checkCaptionsThumbnailsRegular, "btnCaptionsThumbnailsRegular"},
      {&core::GalleryProject::checkCaptionsThumbnailsRegular, "comboCaptionsThumbnailsRegularPlacement"},
      {&core::GalleryProject::checkCaptionsThumbnailsRegular, "comboCaptionsThumbnailsRegularAlignment"},
      {&core::GalleryProject::checkCaptionsThumbnailsPopup, "btnCaptionsThumbnailsPopup"},
      {&core::GalleryProject::checkImageWrapperSetColors, "btnImageWrapperColors"},
      {&core::GalleryProject::checkThumbnailsPageSetColors, "btnThumbnailsPageColors"},
      {&core::GalleryProject::checkThumbnailsTableUseBGColor, "btnThumbnailsTableBGColor"},
      {&core::GalleryProject::checkPageLinksThumbnailDirectLinks, "textPageLinksThumbnailMaxDirectLinks"},
  };
  for (const Case& c : cases) {
    core::GalleryProject project;
    project.*c.flag = 0;
    EXPECT_FALSE(Holds(c.control, project)) << c.control;
    project.*c.flag = 1;
    EXPECT_TRUE(Holds(c.control, project)) << c.control;
  }
}

TEST(ControlRules, KeepingTheImageSizeHidesTheSizeSettings) {
  core::GalleryProject project;
  EXPECT_TRUE(Holds("frmImageWrapperImageSettingsSub", project));
  project.checkImageWrapperImageKeepSize = 1;
  EXPECT_FALSE(Holds("frmImageWrapperImageSettingsSub", project));
}

TEST(ControlRules, PlacementsFromTheThirdOnAreAboveOrBelow) {
  ASSERT_EQ(AlignmentLists().size(), 2U);
  for (const AlignmentList& list : AlignmentLists()) {
    for (core::Choice placement = 0; placement <= 3; ++placement) {
      core::GalleryProject project;
      project.*list.placement = placement;
      EXPECT_EQ(IsAboveOrBelow(list, project), placement >= 2) << placement;
    }
  }
}

}  // namespace
}  // namespace vantorium::ui
