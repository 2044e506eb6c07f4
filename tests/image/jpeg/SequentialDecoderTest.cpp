#include "image/jpeg/SequentialDecoder.h"
#include "tests/fakes/JpegMaker.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/image/jpeg/WantedRows.h"

#include <numeric>
#include <random>

#include <gtest/gtest.h>

namespace vantorium {
namespace {

using fakes::JpegColors;
using fakes::JpegRecipe;

#define VANTORIUM_TEXT(number) #number
#define VANTORIUM_TEXT_OF(macro) VANTORIUM_TEXT(macro)

// Some of the sizes are enough for the version of the library that all were compared with. Another one may decode
// otherwise: then all are.
bool LibraryIsTheProvedOne() {
  return std::string_view(VANTORIUM_TEXT_OF(LIBJPEG_TURBO_VERSION)) == "2.1.5";
}

std::vector<int> Sides() {
  if (LibraryIsTheProvedOne()) return {1, 2, 3, 5, 6, 7, 8, 9, 15, 16, 17, 18, 24, 31, 32, 33, 39, 40};
  std::vector<int> sides(40);
  std::iota(sides.begin(), sides.end(), 1);
  return sides;
}

std::vector<JpegRecipe> UsualKinds() {
  return {{.colors = JpegColors::Grey, .horizontal = 1, .vertical = 1},
          {.horizontal = 1, .vertical = 1},
          {.horizontal = 2, .vertical = 1},
          {.horizontal = 2, .vertical = 2}};
}

// The library repeats narrow chroma.
bool HasNarrowChroma(const JpegRecipe& recipe) {
  return recipe.colors == JpegColors::YCbCr && recipe.horizontal == 2 && recipe.width <= 4;
}

class SequentialDecoderTest : public ::testing::Test {
 protected:
  void Expect(const JpegRecipe& recipe, const std::string& jpeg, unsigned number) {
    const auto file = folder.Write("picture.jpg", jpeg);
    const auto wanted = fakes::SomePixels(recipe.width, recipe.height, number);
    const auto expected = fakes::ReadByLibrary(file, wanted);
    ASSERT_TRUE(expected) << recipe;
    EXPECT_EQ(fakes::ReadAlone(file, wanted), expected) << recipe << ", pixels " << number;
  }
  void ExpectOtherKind(const JpegRecipe& recipe) {
    const auto file = folder.Write("picture.jpg", fakes::MakeJpeg(recipe));
    const auto wanted = fakes::SomePixels(recipe.width, recipe.height, 1);
    EXPECT_FALSE(fakes::ReadAlone(file, wanted)) << recipe;
    EXPECT_EQ(fakes::ReadAsWanted(file, wanted), fakes::ReadByLibrary(file, wanted)) << recipe;
  }

  fakes::TemporaryFolder folder;
};

TEST_F(SequentialDecoderTest, WantedPixelsAreTheLibrarysInEverySizeAndSampling) {
  unsigned number = 0;
  for (JpegRecipe recipe : UsualKinds()) {
    for (const int height : Sides()) {
      for (const int width : Sides()) {
        recipe.width = width;
        recipe.height = height;
        if (!HasNarrowChroma(recipe)) Expect(recipe, fakes::MakeJpeg(recipe), number++ % 7);
      }
    }
  }
}

TEST_F(SequentialDecoderTest, WantedPixelsAreTheLibrarysInEveryQuality) {
  for (JpegRecipe recipe : UsualKinds()) {
    for (recipe.quality = 1; recipe.quality <= 100; ++recipe.quality) {
      recipe.optimised = recipe.quality % 2 == 0;
      Expect(recipe, fakes::MakeJpeg(recipe), static_cast<unsigned>(recipe.quality) % 3);
    }
  }
}

TEST_F(SequentialDecoderTest, WantedPixelsAreTheLibrarysWithRestartMarkers) {
  for (JpegRecipe recipe : UsualKinds()) {
    recipe.width = 70;
    recipe.height = 200;
    for (const unsigned interval : {1U, 2U, 5U, 7U, 9U, 40U}) {
      recipe.restartEvery = interval;
      for (const unsigned number : {0U, 1U, 9U}) Expect(recipe, fakes::MakeJpeg(recipe), number);
    }
  }
}

// Of every color there is some. Between the restart markers are more bytes than are read from the file at a time.
TEST_F(SequentialDecoderTest, WantedPixelsAreTheLibrarysInLargeAndRoughPictures) {
  std::mt19937 generator(5);
  const auto soft = [&](int x, int y) {
    const auto channel = [&](int value) {
      return static_cast<std::uint8_t>(value / 4 + static_cast<int>(generator() % 9));
    };
    return std::array<std::uint8_t, 4>{channel(x), channel(y), channel(x + y), 0};
  };
  for (JpegRecipe recipe : UsualKinds()) {
    recipe.width = 700;
    recipe.height = 300;
    for (const unsigned interval : {0U, 900U}) {
      recipe.quality = interval == 0 ? 50 : 99;
      recipe.restartEvery = interval;
      const std::string jpeg = fakes::MakeJpeg(recipe, soft);
      for (const unsigned number : {0U, 2U, 20U, 400U}) Expect(recipe, jpeg, number);
    }
  }
}

TEST_F(SequentialDecoderTest, OtherKindsOfFilesAreLeftToTheLibrary) {
  for (const auto& recipe : fakes::EveryKindOfJpeg()) {
    const bool usualColors = recipe.colors == JpegColors::Grey || recipe.colors == JpegColors::YCbCr;
    const bool usualSampling = recipe.horizontal <= 2 && recipe.vertical <= recipe.horizontal;
    if (recipe.progressive || recipe.arithmetic || !usualColors || !usualSampling || HasNarrowChroma(recipe)) {
      ExpectOtherKind(recipe);
    }
  }
}

TEST_F(SequentialDecoderTest, StepsOfSixteenBitsAreLeftToTheLibrary) {
  for (JpegRecipe recipe : UsualKinds()) {
    recipe.quality = 2;
    recipe.wideSteps = true;
    ExpectOtherKind(recipe);
  }
}

}  // namespace
}  // namespace vantorium
