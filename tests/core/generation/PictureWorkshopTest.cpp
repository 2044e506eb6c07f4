#include "core/generation/PictureWorkshop.h"
#include "image/JPEG.h"
#include "tests/core/generation/ThreadLimit.h"
#include "tests/fakes/TemporaryFolder.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

namespace vantorium::generation {
namespace {

class PictureWorkshopTest : public ::testing::Test {
 protected:
  PictureWorkshopTest() {
    image::cDIBSection picture;
    EXPECT_TRUE(picture.Create(64, 48));
    std::fill_n(picture.DIBSectionBitsPtr(), picture.BytesPerScanLine() * picture.height(), std::uint8_t{99});
    source = folder.Write("source.jpg", image::EncodeJPEG(picture, 80));
  }

  /// Task n makes a picture that is n pixels wide. Numbers in `without` have no task.
  [[nodiscard]] std::optional<PictureTask> Plan(std::int32_t number) {
    planned.push_back(number);
    if (without.count(number) > 0) return std::nullopt;
    image::PictureRecipe recipe;
    recipe.size = image::PictureSize{number, 4};
    return PictureTask{source, {recipe, {}}};
  }
  [[nodiscard]] std::int32_t WidthOf(const MadePictures& made) {
    std::int32_t width = 0;
    std::int32_t height = 0;
    EXPECT_TRUE(image::ReadJPEGSize(folder.Write("made.jpg", made.files.image.Bytes()), width, height));
    return width;
  }

  fakes::TemporaryFolder folder;
  std::filesystem::path source;
  std::vector<std::int32_t> planned;
  std::set<std::int32_t> without;
  PictureWorkshop::Plan plan = [this](std::int32_t number) { return Plan(number); };
  PictureWorkshop::Waiting wait = [] { return true; };
};

TEST_F(PictureWorkshopTest, EachNumberGetsTheResultOfItsTaskWithAnyNumberOfWorkers) {
  for (unsigned jobs : {1U, 2U, 4U}) {
    PictureWorkshop workshop(jobs, 20, plan);
    for (std::int32_t number = 1; number <= 20; ++number) {
      const auto made = workshop.Take(number, wait);
      ASSERT_TRUE(made) << number;
      EXPECT_EQ(WidthOf(*made), number) << jobs << " jobs";
    }
  }
}

TEST_F(PictureWorkshopTest, OnlyABoundedNumberOfTasksIsPlannedAhead) {
  PictureWorkshop workshop(2, 100, plan);
  std::ignore = workshop.Take(1, wait);
  EXPECT_EQ(planned, (std::vector<std::int32_t>{1, 2, 3, 4}));
  std::ignore = workshop.Take(3, wait);
  EXPECT_EQ(planned, (std::vector<std::int32_t>{1, 2, 3, 4, 5, 6}));
}

TEST_F(PictureWorkshopTest, ANumberWithoutATaskGivesNothing) {
  without = {1, 3};
  PictureWorkshop workshop(2, 4, plan);
  EXPECT_FALSE(workshop.Take(1, wait));
  EXPECT_TRUE(workshop.Take(2, wait));
  EXPECT_FALSE(workshop.Take(3, wait));
  EXPECT_TRUE(workshop.Take(4, wait));
}

TEST_F(PictureWorkshopTest, NumbersMayBeSkipped) {
  PictureWorkshop workshop(2, 30, plan);
  std::ignore = workshop.Take(2, wait);
  const auto made = workshop.Take(25, wait);
  ASSERT_TRUE(made);
  EXPECT_EQ(WidthOf(*made), 25);
  EXPECT_EQ(std::count(planned.begin(), planned.end(), 15), 0);
}

TEST_F(PictureWorkshopTest, TheResultHasTheStampOfTheSource) {
  PictureWorkshop workshop(1, 1, plan);
  EXPECT_EQ(workshop.Take(1, wait)->source, StampOf(source));
}

TEST_F(PictureWorkshopTest, AMissingSourceIsNotDecodedAndHasNoStamp) {
  source = folder.Path() / "missing.jpg";
  PictureWorkshop workshop(1, 1, plan);
  const auto made = workshop.Take(1, wait);
  ASSERT_TRUE(made);
  EXPECT_FALSE(made->files.decoded);
  EXPECT_FALSE(made->source);
}

TEST_F(PictureWorkshopTest, UnusedTasksAreStoppedAtTheEnd) {
  PictureWorkshop workshop(1, 1000, plan);
  std::ignore = workshop.Take(1, wait);
}

TEST_F(PictureWorkshopTest, FewerThreadsThanRequestedDoTheWork) {
  for (int threads : {0, 1, 2}) {
    const fakes::ThreadLimit limit(threads);
    PictureWorkshop workshop(4, 9, plan);
    for (std::int32_t number = 1; number <= 9; ++number) {
      const auto made = workshop.Take(number, wait);
      ASSERT_TRUE(made) << number;
      EXPECT_EQ(WidthOf(*made), number) << threads << " threads";
    }
  }
}

TEST_F(PictureWorkshopTest, WithoutThreadsNothingIsMadeAhead) {
  const fakes::ThreadLimit limit(0);
  PictureWorkshop workshop(2, 9, plan);
  std::ignore = workshop.Take(1, wait);
  EXPECT_EQ(planned, std::vector<std::int32_t>{1});
}

TEST_F(PictureWorkshopTest, ATaskCanBeDoneImmediately) {
  PictureWorkshop workshop(1, 1, plan);
  EXPECT_EQ(WidthOf(workshop.Make(*Plan(9))), 9);
}

}  // namespace
}  // namespace vantorium::generation
