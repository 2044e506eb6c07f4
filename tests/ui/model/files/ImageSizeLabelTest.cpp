#include "tests/fakes/PhotographMaker.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/files/ImageSizeLabel.h"

namespace vantorium::ui {
namespace {

TEST(ImageSizeLabel, HasTheSizesOfThePictureAndTheFile) {
  const fakes::TemporaryFolder folder;
  std::string jpeg = fakes::MakeJpeg({.width = 40, .height = 30});
  jpeg.resize(95 * 1024);  // bytes after the picture count for the file's size only
  EXPECT_EQ(ImageSizeLabel(folder.Write("a.jpg", jpeg)), "(40x30, 95KB)");
}

TEST(ImageSizeLabel, HasTheSizeOfTheUprightPhotographIfItIsTurned) {
  const fakes::TemporaryFolder folder;
  const std::string jpeg = fakes::WithOrientation(fakes::MakeJpeg({.width = 40, .height = 30}), 6);
  const auto file = folder.Write("a.jpg", jpeg);
  EXPECT_TRUE(ImageSizeLabel(file).starts_with("(40x30, "));
  EXPECT_TRUE(ImageSizeLabel(file, true).starts_with("(30x40, "));
}

TEST(ImageSizeLabel, IsEmptyForAnUnreadableFile) {
  const fakes::TemporaryFolder folder;
  EXPECT_EQ(ImageSizeLabel(std::nullopt), "");
  EXPECT_EQ(ImageSizeLabel(folder.Path() / "gone.jpg"), "");
  EXPECT_EQ(ImageSizeLabel(folder.Path()), "");
  EXPECT_EQ(ImageSizeLabel(folder.Write("text.jpg", "no picture")), "");
  EXPECT_EQ(ImageSizeLabel(folder.Write("empty.jpg", "")), "");
}

}  // namespace
}  // namespace vantorium::ui
