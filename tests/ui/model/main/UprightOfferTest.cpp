#include "tests/fakes/PhotographMaker.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/main/UprightOffer.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using Names = std::vector<std::string>;

class UprightOfferTest : public testing::Test {
 protected:
  void Add(const std::string& name, std::size_t position = 0, const std::string& drive = "T:\\") {
    core::ImageEntry entry;
    entry.ImageName = name;
    entry.SourcePath = drive + name;
    project.images.Insert(position == 0 ? project.images.Count() + 1 : position, entry);
  }
  /// The names of the added photographs to examine, then "|" and those of the earlier ones; "none" if there are none.
  [[nodiscard]] std::string Looked() const {
    const auto search = offer.AfterAdding();
    if (!search) return "none";
    std::string text;
    for (const auto& file : search->added) text += file.filename().string() + " ";
    text += "|";
    for (const auto& file : search->earlier) text += " " + file.filename().string();
    return text;
  }

  fakes::TemporaryFolder folder;
  env::PathMap paths{{{'T', folder.Path().string()}}};
  core::Project project;
  fakes::RecordingMessageBox boxes;
  UprightOffer offer{project, paths};
};

TEST_F(UprightOfferTest, AddedPhotographsAreExaminedWhereverTheyAreInTheList) {
  Add("a.jpg");
  offer.BeforeAdding();
  EXPECT_EQ(Looked(), "none");
  Add("b.jpg", 1);
  Add("a.jpg");
  EXPECT_EQ(Looked(), "b.jpg a.jpg | a.jpg") << "the same file again";
}

TEST_F(UprightOfferTest, APathWithoutAPlaceIsNotExamined) {
  offer.BeforeAdding();
  Add("x.jpg", 1, "Q:\\");
  EXPECT_EQ(Looked(), "none");
}

TEST_F(UprightOfferTest, TheUserIsAskedOncePerProject) {
  boxes.answers = {env::BoxAnswer::No, env::BoxAnswer::Yes};
  EXPECT_FALSE(offer.Ask(boxes));
  EXPECT_FALSE(offer.Ask(boxes));
  offer.BeforeAdding();
  Add("a.jpg");
  EXPECT_EQ(Looked(), "none");
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].buttons, env::BoxButtons::YesNo);
  EXPECT_EQ(boxes.boxes[0].title, "Photographs on their Side");

  offer.ForgetProject();
  offer.BeforeAdding();
  Add("b.jpg");
  EXPECT_EQ(Looked(), "b.jpg | a.jpg");
  EXPECT_TRUE(offer.Ask(boxes));
}

TEST_F(UprightOfferTest, NothingIsAskedIfTheProjectAlreadyTurnsPhotographs) {
  project.settings.checkImagesUpright = 1;
  offer.BeforeAdding();
  Add("a.jpg");
  EXPECT_EQ(Looked(), "none");
  EXPECT_FALSE(offer.Ask(boxes));
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(UprightOfferTest, TurnedPhotographsAreFoundTheFirstTimeTheyAreAdded) {
  const std::string jpeg = fakes::MakeJpeg({});
  const auto upright = folder.Write("upright.jpg", jpeg);
  const auto said = folder.Write("said.jpg", fakes::WithOrientation(jpeg, 1));
  const auto lying = folder.Write("lying.jpg", fakes::WithOrientation(jpeg, 8));
  const auto text = folder.Write("text.jpg", "no picture");
  const auto missing = folder.Path() / "missing.jpg";
  EXPECT_TRUE(FindsFirstLying({{upright, text, missing, lying}, {}}, {}));
  EXPECT_TRUE(FindsFirstLying({{lying}, {upright, said, missing}}, {}));
  EXPECT_FALSE(FindsFirstLying({{lying}, {upright, lying}}, {})) << "the project had one before";
  EXPECT_FALSE(FindsFirstLying({{upright, said, text, missing}, {}}, {}));
  EXPECT_FALSE(FindsFirstLying({{}, {}}, {}));
}

TEST_F(UprightOfferTest, OnlyTheHeaderOfAFileIsRead) {
  const std::string jpeg = fakes::WithOrientation(fakes::MakeJpeg({.width = 200, .height = 200}), 3);
  EXPECT_TRUE(FindsFirstLying({{folder.Write("cut.jpg", jpeg.substr(0, fakes::PictureDataOf(jpeg)))}, {}}, {}));
}

TEST_F(UprightOfferTest, AStoppedSearchFindsNothing) {
  const auto lying = folder.Write("lying.jpg", fakes::WithOrientation(fakes::MakeJpeg({}), 6));
  std::stop_source stop;
  stop.request_stop();
  EXPECT_FALSE(FindsFirstLying({{lying}, {}}, stop.get_token()));
}

}  // namespace
}  // namespace vantorium::ui
