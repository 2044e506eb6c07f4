#include "image/jpeg/SequentialDecoder.h"
#include "tests/fakes/JpegMaker.h"
#include "tests/image/jpeg/WantedRows.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

namespace vantorium {
namespace {

using fakes::JpegColors;
using fakes::JpegRecipe;

std::vector<JpegRecipe> UsualKinds() {
  return {{.colors = JpegColors::Grey, .horizontal = 1, .vertical = 1},
          {.horizontal = 1, .vertical = 1},
          {.horizontal = 2, .vertical = 1},
          {.horizontal = 2, .vertical = 2}};
}

// libjpeg-turbo does not smooth chroma of one or two columns.
bool HasNarrowChroma(const JpegRecipe& recipe) {
  return recipe.colors == JpegColors::YCbCr && recipe.horizontal == 2 && recipe.width <= 4;
}

class SequentialDecoderTest : public ::testing::Test {
 protected:
  void Expect(const JpegRecipe& recipe, const std::string& jpeg, unsigned number) {
    const auto file = memory.Write(jpeg);
    const auto wanted = fakes::SomePixels(recipe.width, recipe.height, number);
    const auto expected = fakes::ReadByLibrary(file, wanted);
    ASSERT_TRUE(expected) << recipe;
    EXPECT_EQ(fakes::ReadAlone(file, wanted), expected) << recipe << ", pixels " << number;
  }
  void ExpectOtherKind(const JpegRecipe& recipe) {
    const auto file = memory.Write(fakes::MakeJpeg(recipe));
    const auto wanted = fakes::SomePixels(recipe.width, recipe.height, 1);
    EXPECT_FALSE(fakes::ReadAlone(file, wanted)) << recipe;
    EXPECT_EQ(fakes::ReadAsWanted(file, wanted), fakes::ReadByLibrary(file, wanted)) << recipe;
  }

  fakes::MemoryFile memory;
};

// Another version of libjpeg-turbo may decode differently, so no size is left out.
TEST_F(SequentialDecoderTest, WantedPixelsEqualLibjpegTurbosInEverySizeAndSampling) {
  constexpr int kMostSide = 40;
  unsigned number = 0;
  for (JpegRecipe recipe : UsualKinds()) {
    for (recipe.height = 1; recipe.height <= kMostSide; ++recipe.height) {
      for (recipe.width = 1; recipe.width <= kMostSide; ++recipe.width) {
        if (!HasNarrowChroma(recipe)) Expect(recipe, fakes::MakeJpeg(recipe), number++ % 7);
      }
    }
  }
}

// Rows of blocks meet below row 15, also those of halved chroma. The bottom row is always wanted.
TEST_F(SequentialDecoderTest, WantedPixelsEqualLibjpegTurbosForEveryChoiceOfRowsWhereBlocksMeet) {
  constexpr int kHeight = 21;
  constexpr std::size_t kFirst = 11;
  constexpr std::size_t kChoices = 9;
  for (JpegRecipe recipe : UsualKinds()) {
    recipe.height = kHeight;
    const auto file = memory.Write(fakes::MakeJpeg(recipe));
    auto wanted = fakes::SomePixels(recipe.width, kHeight, 0);
    const auto all = fakes::ReadByLibrary(file, wanted);
    ASSERT_TRUE(all);
    for (unsigned rows = 0; rows < 1U << kChoices; ++rows) {
      std::fill(wanted.rows.begin(), wanted.rows.end() - 1, std::uint8_t{0});
      for (std::size_t i = 0; i < kChoices; ++i) wanted.rows[kFirst + i] = rows >> i & 1;
      auto expected = *all;
      std::erase_if(expected, [&](const auto& row) { return wanted.rows[row.first] == 0; });
      EXPECT_EQ(fakes::ReadAlone(file, wanted), expected) << recipe << ", rows " << rows;
    }
  }
}

TEST_F(SequentialDecoderTest, WantedPixelsEqualLibjpegTurbosInEveryQuality) {
  for (JpegRecipe recipe : UsualKinds()) {
    for (recipe.quality = 1; recipe.quality <= 100; ++recipe.quality) {
      for (const bool ownCodes : {false, true}) {
        recipe.optimised = ownCodes;
        Expect(recipe, fakes::MakeJpeg(recipe), static_cast<unsigned>(recipe.quality) % 3);
      }
    }
  }
}

TEST_F(SequentialDecoderTest, WantedPixelsEqualLibjpegTurbosWithRestartMarkers) {
  for (JpegRecipe recipe : UsualKinds()) {
    recipe.width = 70;
    recipe.height = 200;
    for (const unsigned interval : {1U, 2U, 5U, 7U, 9U, 40U}) {
      recipe.restartEvery = interval;
      for (const unsigned number : {0U, 1U, 9U}) Expect(recipe, fakes::MakeJpeg(recipe), number);
    }
  }
}

// The pictures have all colors. The segments between restart markers are longer than a piece read from the file.
TEST_F(SequentialDecoderTest, WantedPixelsEqualLibjpegTurbosInLargeAndRoughPictures) {
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

TEST_F(SequentialDecoderTest, OtherKindsOfFilesAreLeftToLibjpegTurbo) {
  for (const auto& recipe : fakes::EveryKindOfJpeg()) {
    const bool usualColors = recipe.colors == JpegColors::Grey || recipe.colors == JpegColors::YCbCr;
    const bool usualSampling = recipe.horizontal <= 2 && recipe.vertical <= recipe.horizontal;
    if (recipe.progressive || recipe.arithmetic || !usualColors || !usualSampling || HasNarrowChroma(recipe)) {
      ExpectOtherKind(recipe);
    }
  }
}

TEST_F(SequentialDecoderTest, HalfHeightAndNarrowChromaAreLeftToLibjpegTurboInEverySize) {
  for (const bool narrow : {false, true}) {
    JpegRecipe recipe = {.horizontal = narrow ? 2 : 1, .vertical = 2};
    for (recipe.height = 1; recipe.height <= 40; ++recipe.height) {
      for (recipe.width = 1; recipe.width <= (narrow ? 4 : 40); ++recipe.width) ExpectOtherKind(recipe);
    }
  }
}

TEST_F(SequentialDecoderTest, QuantizationStepsOfSixteenBitsAreLeftToLibjpegTurbo) {
  for (JpegRecipe recipe : UsualKinds()) {
    recipe.quality = 2;
    recipe.wideSteps = true;
    ExpectOtherKind(recipe);
  }
}

}  // namespace
}  // namespace vantorium
