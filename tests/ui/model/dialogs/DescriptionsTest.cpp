#include "tests/fakes/RecordingMessageBox.h"
#include "ui/model/dialogs/Descriptions.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

class DescriptionsOfAProject : public testing::Test {
 protected:
  DescriptionsOfAProject() {
    project.images.Insert(1, {"Alps", "", "", "", "the Alps", "A"});
    project.images.Insert(2, {"Brook", "", "", "", "a brook", "B"});
  }

  [[nodiscard]] std::vector<std::string_view> Alignments(const DescriptionKind& kind) const {
    const core::ValueList texts = descriptions.Alignments(kind);
    return {texts.begin(), texts.end()};
  }

  const DescriptionKind& images = DescriptionKinds()[kImageDescriptions];
  const DescriptionKind& thumbnails = DescriptionKinds()[kThumbnailDescriptions];
  core::Project project;
  core::ProjectEditor editor{project.settings, project.IsModified};
  fakes::RecordingMessageBox boxes;
  Descriptions descriptions{project, boxes};
};

TEST_F(DescriptionsOfAProject, AreEmptyWithoutAnImage) {
  EXPECT_FALSE(descriptions.HasImage());
  EXPECT_EQ(descriptions.Caption(images), "Image Description: (No Image selected)");
  EXPECT_EQ(descriptions.Caption(thumbnails), "Thumb Description: (No Image selected)");
  EXPECT_EQ(descriptions.Text(images), "");
  EXPECT_EQ(descriptions.Text(thumbnails), "");
}

TEST_F(DescriptionsOfAProject, AreThoseOfTheCurrentImage) {
  project.images.SetCurrent(2);
  EXPECT_EQ(descriptions.Caption(images), "Image Description: Brook");
  EXPECT_EQ(descriptions.Caption(thumbnails), "Thumb Description: Brook");
  EXPECT_EQ(descriptions.Text(images), "a brook");
  EXPECT_EQ(descriptions.Text(thumbnails), "B");
  EXPECT_FALSE(project.IsModified);
}

TEST_F(DescriptionsOfAProject, AnEditChangesOnlyTheCurrentImage) {
  project.images.SetCurrent(2);
  descriptions.SetText(images, "a river");
  EXPECT_TRUE(project.IsModified);
  descriptions.SetText(thumbnails, "R");
  EXPECT_EQ(project.images.Entry(2).ImageDescription, "a river");
  EXPECT_EQ(project.images.Entry(2).ThumbnailDescription, "R");
  EXPECT_EQ(project.images.Entry(1).ImageDescription, "the Alps");
}

TEST_F(DescriptionsOfAProject, AnEditWithoutAnImageChangesNothing) {
  descriptions.SetText(images, "x");
  EXPECT_FALSE(project.IsModified);
  project.images.Clear();
  descriptions.SetText(thumbnails, "x");
  EXPECT_FALSE(project.IsModified);
}

TEST_F(DescriptionsOfAProject, ClearingAllAsksAndClearsOneKind) {
  EXPECT_TRUE(descriptions.MayClearAll(images));
  descriptions.ClearAll(images);
  EXPECT_TRUE(project.IsModified);
  for (const std::size_t position : {1U, 2U}) {
    EXPECT_EQ(project.images.Entry(position).ImageDescription, "");
    EXPECT_NE(project.images.Entry(position).ThumbnailDescription, "");
  }
  EXPECT_TRUE(descriptions.MayClearAll(thumbnails));
  ASSERT_EQ(boxes.boxes.size(), 2U);
  EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Exclamation);
  EXPECT_EQ(boxes.boxes[0].buttons, env::BoxButtons::YesNo);
  EXPECT_EQ(boxes.boxes[0].title, "Clear Image Descriptions");
  EXPECT_EQ(boxes.boxes[0].text,
            "This will delete the Descriptions for ALL Images in the Gallery.  Are you sure you wish to continue?");
  EXPECT_EQ(boxes.boxes[1].title, "Clear Thumbnail Descriptions");
  EXPECT_EQ(boxes.boxes[1].text,
            "This will delete the Descriptions for ALL Thumbnails in the Gallery.  Are you sure you wish to continue?");
}

TEST_F(DescriptionsOfAProject, ClearingAllStopsAtNo) {
  boxes.answers = {env::BoxAnswer::No};
  EXPECT_FALSE(descriptions.MayClearAll(images));
}

TEST_F(DescriptionsOfAProject, ClearingAnEmptyListAsksNothing) {
  project.images.Clear();
  EXPECT_FALSE(descriptions.MayClearAll(images));
  EXPECT_FALSE(descriptions.MayClearAll(thumbnails));
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(DescriptionsOfAProject, TheAlignmentsFollowThePlacement) {
  const std::vector<std::string_view> vertical = {"align top", "align center", "align bottom"};
  const std::vector<std::string_view> horizontal = {"align left", "align center", "align right"};
  for (const DescriptionKind& kind : DescriptionKinds()) {
    for (core::Choice placement = 0; placement <= 4; ++placement) {
      descriptions.ChoosePlacement(kind, placement);
      EXPECT_EQ(Alignments(kind), placement == 1 || placement == 2 ? vertical : horizontal) << placement;
      EXPECT_EQ(descriptions.IsAlignmentEnabled(kind), placement != 0) << placement;
    }
  }
}

TEST_F(DescriptionsOfAProject, AnAlignmentKeepsItsIndexWhenThePlacementChanges) {
  descriptions.ChoosePlacement(images, 1);
  descriptions.ChooseAlignment(images, 2);
  EXPECT_EQ(Alignments(images)[2], "align bottom");
  descriptions.ChoosePlacement(images, 3);
  EXPECT_EQ(descriptions.Shown(images).alignment, 2);
  EXPECT_EQ(Alignments(images)[2], "align right");
}

TEST_F(DescriptionsOfAProject, APlacementMarksTheProjectAsModifiedAtOnceAndIsStoredLater) {
  descriptions.TakePlacings();
  descriptions.ChoosePlacement(thumbnails, 0);
  EXPECT_FALSE(project.IsModified) << "the same placement";
  descriptions.ChoosePlacement(thumbnails, 4);
  descriptions.ChooseAlignment(thumbnails, 1);
  EXPECT_TRUE(project.IsModified);
  EXPECT_EQ(project.settings.comboThumbnailDescriptionPlacement, 0);
  EXPECT_TRUE(descriptions.HasUnstoredPlacings());
  descriptions.StorePlacings(editor);
  EXPECT_EQ(project.settings.comboThumbnailDescriptionPlacement, 4);
  EXPECT_EQ(project.settings.comboThumbnailDescriptionAlignment, 1);
  EXPECT_EQ(project.settings.comboImageDescriptionPlacement, 0);
  EXPECT_FALSE(descriptions.HasUnstoredPlacings());
}

TEST_F(DescriptionsOfAProject, PlacementsAreReadOnceEachTimeTheWindowIsShown) {
  project.settings.comboImageDescriptionPlacement = 2;
  descriptions.TakePlacings();
  EXPECT_EQ(descriptions.Shown(images).placement, 2);
  descriptions.ChoosePlacement(images, 3);
  descriptions.TakePlacings();
  EXPECT_EQ(descriptions.Shown(images).placement, 3) << "following the list keeps the choice";
  descriptions.Disappear();
  EXPECT_FALSE(descriptions.HasUnstoredPlacings()) << "a hidden window has nothing to store";
  descriptions.TakePlacings();
  EXPECT_EQ(descriptions.Shown(images).placement, 2);
}

TEST_F(DescriptionsOfAProject, PlacementsAreReadAgainFromAnotherProject) {
  descriptions.TakePlacings();
  descriptions.ChoosePlacement(images, 3);
  project.settings.comboImageDescriptionAlignment = 2;
  descriptions.TakePlacings();
  EXPECT_EQ(descriptions.Shown(images), (Descriptions::Placing{0, 2}));
  descriptions.ChoosePlacement(images, 3);
  project.ProjectFileName = "D:\\Other.gpj";
  descriptions.TakePlacings();
  EXPECT_EQ(descriptions.Shown(images), (Descriptions::Placing{0, 2}));
}

}  // namespace
}  // namespace vantorium::ui
