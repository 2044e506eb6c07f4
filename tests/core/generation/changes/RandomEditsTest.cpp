#include "tests/core/generation/changes/ChangesFixture.h"

#include <functional>
#include <random>

namespace vantorium::generation {
namespace {

/// Makes random edits that a user could make.
class RandomEditsTest : public ChangesFixture, public ::testing::WithParamInterface<unsigned> {
 protected:
  [[nodiscard]] std::size_t Below(std::size_t end) { return random_() % end; }
  [[nodiscard]] std::size_t AnyImage() { return 1 + Below(project.images.Count()); }

  std::string Photograph() {
    const std::string name = "photo" + std::to_string(Below(6));
    const auto width = static_cast<std::int32_t>(8 + Below(40));
    const auto height = static_cast<std::int32_t>(8 + Below(40));
    folder.Write("photos/" + name + ".jpg", PlainJpeg(width, height, static_cast<std::uint8_t>(Below(256))));
    return "T:\\photos\\" + name + ".jpg";
  }
  void Add() { AddEntry("image " + std::to_string(++images_), Photograph()); }
  void ReplaceSource() { Photograph(); }
  void Remove() {
    if (project.images.Count() > 1) project.images.Remove(AnyImage());
  }
  void Edit(const std::function<void(core::ImageEntry&)>& edit) {
    const std::size_t position = AnyImage();
    core::ImageEntry entry = project.images.Entry(position);
    edit(entry);
    project.images.Remove(position);
    project.images.Insert(position, entry);
  }
  void Move() {
    const std::size_t from = AnyImage();
    const core::ImageEntry entry = project.images.Entry(from);
    project.images.Remove(from);
    project.images.Insert(1 + Below(project.images.Count() + 1), entry);
  }
  void Filter(image::ImageFilterSettings& filters) {
    const std::array switches = {&image::ImageFilterSettings::checkGrayscale,
                                 &image::ImageFilterSettings::checkBrightness, &image::ImageFilterSettings::checkFade,
                                 &image::ImageFilterSettings::checkNoise,
                                 &image::ImageFilterSettings::checkNoiseRandom};
    std::int16_t& toggled = filters.*switches.at(Below(switches.size()));
    toggled = static_cast<std::int16_t>(1 - toggled);
    if (Below(3) == 0) filters.sliderQuality = static_cast<std::int16_t>(50 + Below(50));
  }
  void Watermark(image::WatermarkSettings& watermark) {
    watermark.checkUseWatermark = static_cast<std::int16_t>(Below(2));
    watermark.textWatermark = Below(2) == 0 ? "ours" : "mine";
    watermark.comboTextPlacement = static_cast<std::int16_t>(Below(11));
    watermark.FontSize = static_cast<std::int16_t>(6 + Below(10));
  }
  void Toggle(core::Flag core::GalleryProject::*flag) {
    project.settings.*flag = static_cast<core::Flag>(1 - project.settings.*flag);
  }
  void Resize() {
    auto& settings = project.settings;
    settings.textImageWrapperImageHeight = std::to_string(10 + Below(30));
    settings.textThumbnailsImageWidth = std::to_string(5 + Below(20));
    Toggle(&core::GalleryProject::checkImageWrapperImageKeepSize);
  }
  void Layout() {
    auto& settings = project.settings;
    settings.comboGalleryLayoutType = static_cast<core::Choice>(Below(4));
    settings.comboImageDescriptionPlacement = static_cast<core::Choice>(Below(5));
    settings.ImageHeader = Below(2) == 0 ? "" : "<VANTORIUM_IMAGE_FILESIZE>";
    settings.textThumbnailImageSettingsFilePrefix = Below(2) == 0 ? "thumb_" : "small_";
    settings.textImageSettingsSubFolder = Below(3) == 0 ? "Pictures" : "Images";
    Toggle(&core::GalleryProject::checkImageWrapperUse);
  }
  void Backdrop() {
    folder.Write("project/back.gif", std::string(1 + Below(3), static_cast<char>('a' + Below(3))));
    project.settings.textThumbnailsPageBackdrop = Below(3) == 0 ? "" : "back.gif";
  }
  void ChangeOutputFile() {
    const auto files = FilesIn("out");
    if (files.empty()) return;
    const auto file =
        folder.Path() / "out" / *std::next(files.begin(), static_cast<std::ptrdiff_t>(Below(files.size())));
    if (Below(2) == 0) {
      std::filesystem::remove(file);
    } else {
      std::ofstream(file, std::ios::binary) << std::string(std::filesystem::file_size(file), '?');
    }
  }

  /// Makes one edit and returns its number.
  std::size_t AnyEdit() {
    const std::vector<std::function<void()>> edits = {
        [this] { Add(); },
        [this] { Remove(); },
        [this] { Edit([this](auto& entry) { entry.ImageName = "image " + std::to_string(++images_); }); },
        [this] { Edit([this](auto& entry) { entry.ImageDescription = std::to_string(random_()); }); },
        [this] { Edit([this](auto& entry) { entry.SourcePath = Photograph(); }); },
        [this] { Move(); },
        [this] { Filter(project.settings.ImageFilters); },
        [this] { Filter(project.settings.ThumbnailFilters); },
        [this] { Watermark(project.settings.ImageWatermark); },
        [this] { Watermark(project.settings.ThumbnailWatermark); },
        [this] { ReplaceSource(); },
        [this] { Resize(); },
        [this] { Layout(); },
        [this] { Toggle(&core::GalleryProject::checkImagesUpright); },
        [this] { Toggle(&core::GalleryProject::checkImagesTrueColors); },
        [this] { Backdrop(); },
        [this] { ChangeOutputFile(); },
    };
    const std::size_t number = Below(edits.size());
    edits[number]();
    return number;
  }
  [[nodiscard]] RunOrder AnyOrder() {
    RunOrder order = Below(4) == 0 ? RemovingUnused() : OnlyChanges();
    if (Below(5) == 0) order.OnlyChanges = order.RemoveUnused = false;
    return order;
  }

  std::mt19937 random_{GetParam()};
  int images_ = 0;
};

TEST_P(RandomEditsTest, AfterEachEditTheGalleryEqualsThatOfAFullRun) {
  constexpr int kEdits = 25;
  for (int i = 0; i < 3; ++i) Add();
  std::string edits = "Seed " + std::to_string(GetParam()) + ", edits";
  for (int i = 0; i < kEdits && !HasFailure(); ++i) {
    edits += " " + std::to_string(AnyEdit());
    environment.jobs = static_cast<unsigned>(1 + Below(2));
    EXPECT_EQ(Run(AnyOrder()), RunEnd::Success) << edits << ": " << LastBox();
    ExpectLikeAFullRun(edits);
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEditsTest, ::testing::Range(1U, 13U));

}  // namespace
}  // namespace vantorium::generation
