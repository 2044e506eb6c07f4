#include "core/generation/ProducePictures.h"
#include "tests/core/generation/RunFixture.h"
#include "tests/fakes/JpegMaker.h"

namespace vantorium::generation {
namespace {

using fakes::JpegColors;
using fakes::JpegRecipe;

class OddPhotographsTest : public RunFixture {
 protected:
  OddPhotographsTest() { environment.jobs = 4; }

  void Add(const std::string& name, const std::string& bytes) {
    folder.Write("photos/" + name + ".jpg", bytes);
    AddEntry(name, "T:\\photos\\" + name + ".jpg");
  }
  void Add(const std::string& name, const JpegRecipe& recipe) { Add(name, fakes::MakeJpeg(recipe)); }
};

/// One of each odd kind that can be decoded.
const std::pair<const char*, JpegRecipe> kOddButGood[] = {
    {"grey", {.colors = JpegColors::Grey}},       {"inks", {.colors = JpegColors::CMYK}},
    {"adobe_inks", {.colors = JpegColors::YCCK}}, {"scans", {.width = 300, .height = 200, .progressive = true}},
    {"dot", {.width = 1, .height = 1}},           {"line", {.width = 1, .height = 5000}},
    {"wide", {.width = 20000, .height = 3}},      {"restarts", {.restartEvery = 1}},
    {"plain", {.horizontal = 1, .vertical = 1}},
};

TEST_F(OddPhotographsTest, CompleteOddFilesBecomePicturesOfTheRequestedSize) {
  for (const auto& [name, recipe] : kOddButGood) Add(name, recipe);
  project.settings.checkImageWrapperImageKeepAspectRatio = 0;
  project.settings.textImageWrapperImageWidth = "30";
  project.settings.textImageWrapperImageHeight = "20";
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Success) << (boxes.boxes.empty() ? "" : boxes.boxes[0].text);
  for (const auto& [name, recipe] : kOddButGood) {
    image::cDIBSection picture;
    ASSERT_TRUE(image::LoadJPEGImage(picture, folder.Path() / "out/Images" / (std::string(name) + ".jpg"))) << name;
    EXPECT_EQ(picture.width(), 30) << name;
    EXPECT_EQ(picture.height(), 20) << name;
    ASSERT_TRUE(image::LoadJPEGImage(picture, folder.Path() / "out/Thumbs" / ("thumb_" + std::string(name) + ".jpg")))
        << name;
    EXPECT_EQ(picture.width(), 60) << name;
  }
}

TEST_F(OddPhotographsTest, AnIncompleteFileEndsTheRunAtItsTurn) {
  const std::string whole = fakes::MakeJpeg({.width = 64, .height = 64});
  const std::pair<const char*, std::string> bad[] = {{"truncated", whole.substr(0, whole.size() / 2)},
                                                     {"empty", ""},
                                                     {"text", "this is no picture"},
                                                     {"huge", fakes::ClaimingSize(whole, 65000, 65000)},
                                                     {"twelve_bits", fakes::ClaimingPrecision(whole, 12)}};
  for (const auto& [name, bytes] : bad) {
    project.images.Clear();
    boxes.boxes.clear();
    std::filesystem::remove_all(folder.Path() / "out");
    Add("good", JpegRecipe());
    Add(name, bytes);
    for (int i = 0; i < 6; ++i) AddEntry("later" + std::to_string(i), "T:\\photos\\good.jpg");
    project.settings.checkImageWrapperImageKeepAspectRatio = 0;
    EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure) << name;
    ASSERT_EQ(boxes.boxes.size(), 1U) << name;
    EXPECT_EQ(boxes.boxes[0].text, "Unable to copy the File \"T:\\photos\\" + std::string(name) + ".jpg\".");
    EXPECT_EQ(FilesIn("out"), std::set<std::string>{"Images/good.jpg"}) << name;
  }
}

TEST_F(OddPhotographsTest, ACancelWhileManyAreInProgressLeavesOnlyCompleteFiles) {
  for (int i = 0; i < 40; ++i) Add("p" + std::to_string(i), {.width = 400, .height = 300, .progressive = i % 2 == 0});
  CancelInTurn(60);
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Cancelled);
  for (const auto& name : FilesIn("out")) {
    std::int32_t width = 0;
    std::int32_t height = 0;
    EXPECT_TRUE(image::ReadJPEGSize(folder.Path() / "out" / name, width, height)) << name;
  }
}

}  // namespace
}  // namespace vantorium::generation
