#include "tests/fakes/JpegMaker.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/files/PreviewLoader.h"

#include <QTest>

namespace vantorium::ui {
namespace {

class Loading : public testing::Test {
 protected:
  Loading() {
    QObject::connect(loader.get(), &PreviewLoader::Loaded,
                     [this](const QImage& picture) { sizes.push_back(picture.size()); });
  }
  [[nodiscard]] std::filesystem::path File(int width, int height) const {
    return folder.Write(std::to_string(width) + ".jpg", fakes::MakeJpeg({.width = width, .height = height}));
  }
  void Wait() {
    std::ignore = QTest::qWaitFor([this] { return !sizes.empty(); }, 10000);
    QTest::qWait(50);
  }

  const image::PictureSize box = {.width = 100, .height = 100};
  fakes::TemporaryFolder folder;
  std::unique_ptr<PreviewLoader> loader = std::make_unique<PreviewLoader>();
  std::vector<QSize> sizes;
};

TEST_F(Loading, APictureIsReducedToTheSizeOfThePreview) {
  loader->Load(File(800, 400), box);
  EXPECT_TRUE(sizes.empty()) << "not from within Load";
  Wait();
  EXPECT_EQ(sizes, (std::vector<QSize>{{100, 50}}));
}

TEST_F(Loading, OnlyTheLatestPictureIsReported) {
  const auto large = File(3000, 2000);
  const auto small = File(40, 30);
  for (int i = 0; i < 20; ++i) loader->Load(large, box);
  loader->Load(small, box);
  Wait();
  EXPECT_EQ(sizes, (std::vector<QSize>{{40, 30}}));
}

TEST_F(Loading, AnUndecodableFileGivesANullImage) {
  loader->Load(folder.Write("text.jpg", "no picture"), box);
  Wait();
  EXPECT_EQ(sizes, (std::vector<QSize>{{0, 0}}));
}

TEST_F(Loading, AnEmptyPathGivesANullImage) {
  loader->Load(std::nullopt, box);
  Wait();
  EXPECT_EQ(sizes, (std::vector<QSize>{{0, 0}}));
}

TEST_F(Loading, ACancelledPictureIsNotReported) {
  loader->Load(File(40, 30), box);
  QThread::msleep(50);  // now decoded, and queued in the event loop
  loader->Cancel();
  QTest::qWait(50);
  EXPECT_TRUE(sizes.empty());
}

TEST_F(Loading, CanBeDestroyedWhileItLoads) {
  loader->Load(File(3000, 2000), box);
  loader.reset();
  QTest::qWait(20);
  EXPECT_TRUE(sizes.empty());
}

}  // namespace
}  // namespace vantorium::ui
