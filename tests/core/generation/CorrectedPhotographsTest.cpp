// Runs with photographs that are turned upright and converted to sRGB.
#include "image/Photograph.h"
#include "image/Resample.h"
#include "image/ResamplePlan.h"
#include "tests/core/generation/RunFixture.h"
#include "tests/fakes/PhotographMaker.h"

namespace vantorium::generation {
namespace {

constexpr int kWidth = 64;
constexpr int kHeight = 40;

class CorrectedPhotographsTest : public RunFixture {
 protected:
  CorrectedPhotographsTest() {
    project.settings.checkImagesUpright = project.settings.checkImagesTrueColors = 1;
    project.settings.textImageWrapperImageHeight = "24";
    project.settings.checkThumbnailsImageKeepAspectRatio = 1;
  }

  /// Adds a photograph with each orientation, "1" to "8".
  void AddTurnedPhotographs() {
    const std::string profile = fakes::ProfileOf(fakes::TestProfile::DisplayP3);
    const std::string jpeg = fakes::WithProfile(fakes::MakeJpeg({.width = kWidth, .height = kHeight}), profile);
    for (int orientation = 1; orientation <= 8; ++orientation) {
      const std::string name = std::to_string(orientation);
      folder.Write("photos/" + name + ".jpg", fakes::WithOrientation(jpeg, orientation));
      AddEntry(name, "T:\\photos\\" + name + ".jpg");
    }
  }
  [[nodiscard]] std::map<std::string, std::string> Gallery() const {
    std::map<std::string, std::string> bytes;
    for (const std::string& name : FilesIn("out")) bytes[name] = folder.Read("out/" + name);
    return bytes;
  }
  /// Whether the file is the source at that size, corrected.
  [[nodiscard]] bool IsMadeOf(const std::string& file, const std::string& source, image::PictureSize size) const {
    image::cDIBSection whole;
    EXPECT_TRUE(image::LoadPhotograph(whole, folder.Path() / source, {.upright = true}));
    const auto wanted = image::Resample(whole, size.height, size.width);
    return folder.Read(file) == image::EncodeJPEG(*wanted, 85);
  }
};

TEST_F(CorrectedPhotographsTest, ImagesAndThumbnailsAreTurnedAndHaveUprightSizes) {
  project.settings.checkImagesTrueColors = 0;
  AddTurnedPhotographs();
  Run(OrderToCreate());
  for (int orientation = 1; orientation <= 8; ++orientation) {
    const std::string file = std::to_string(orientation) + ".jpg";
    const image::PictureSize image = orientation < 5 ? image::PictureSize{38, 24} : image::PictureSize{15, 24};
    const image::PictureSize thumbnail = orientation < 5 ? image::PictureSize{95, 60} : image::PictureSize{38, 60};
    EXPECT_TRUE(IsMadeOf("out/Images/" + file, "photos/" + file, image)) << orientation;
    EXPECT_TRUE(IsMadeOf("out/Thumbs/thumb_" + file, "photos/" + file, thumbnail)) << orientation;
  }
}

TEST_F(CorrectedPhotographsTest, TheGalleryIsTheSameForEveryNumberOfJobs) {
  AddTurnedPhotographs();
  Run(OrderToCreate());
  const auto first = Gallery();
  for (const unsigned jobs : {2U, 5U}) {
    std::filesystem::remove_all(folder.Path() / "out");
    environment.jobs = jobs;
    Run(OrderToCreate());
    EXPECT_TRUE(Gallery() == first) << jobs << " jobs";
  }
}

TEST_F(CorrectedPhotographsTest, ColorsAreConvertedInImagesAndThumbnails) {
  AddTurnedPhotographs();
  Run(OrderToCreate());
  const auto corrected = Gallery();
  project.settings.checkImagesTrueColors = 0;
  std::filesystem::remove_all(folder.Path() / "out");
  Run(OrderToCreate());
  for (const auto& [name, bytes] : Gallery()) {
    EXPECT_EQ(corrected.at(name) != bytes, name.ends_with(".jpg")) << name;
  }
}

TEST_F(CorrectedPhotographsTest, ACopiedImageIsNotCorrected) {
  AddTurnedPhotographs();
  project.settings.checkImageWrapperImagePhysicalResize = 0;
  Run(OrderToCreate());
  for (const char* name : {"1", "6", "8"}) {
    EXPECT_EQ(folder.Read(std::string("out/Images/") + name + ".jpg"),
              folder.Read(std::string("photos/") + name + ".jpg"));
  }
}

TEST_F(CorrectedPhotographsTest, APreviewStatesTheUprightSizesOfPhotographs) {
  AddTurnedPhotographs();
  Run(OrderToPreview());
  const std::string page = folder.Read("temp/thumbpage_1.htm");
  EXPECT_NE(page.find("/photos/1.jpg\" BORDER=\"0\" WIDTH=\"95\" HEIGHT=\"60\""), std::string::npos) << page;
  EXPECT_NE(page.find("/photos/6.jpg\" BORDER=\"0\" WIDTH=\"38\" HEIGHT=\"60\""), std::string::npos);
}

TEST_F(CorrectedPhotographsTest, WithoutTheSettingsTheNotesOfPhotographsAreIgnored) {
  project.settings.checkImagesUpright = project.settings.checkImagesTrueColors = 0;
  const std::string jpeg = fakes::MakeJpeg({.width = kWidth, .height = kHeight});
  AddEntry("a", "T:\\photos\\a.jpg");
  folder.Write("photos/a.jpg", jpeg);
  Run(OrderToCreate());
  const auto plain = Gallery();
  const std::string profile = fakes::ProfileOf(fakes::TestProfile::DisplayP3);
  folder.Write("photos/a.jpg", fakes::WithOrientation(fakes::WithProfile(jpeg, profile), 6));
  Run(OrderToCreate());
  EXPECT_TRUE(Gallery() == plain);
}

}  // namespace
}  // namespace vantorium::generation
