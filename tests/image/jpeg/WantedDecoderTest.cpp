#include "image/jpeg/WantedDecoder.h"
#include "tests/fakes/JpegMaker.h"
#include "tests/image/jpeg/WantedRows.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

namespace vantorium {
namespace {

using fakes::JpegColors;
using fakes::JpegRecipe;
using fakes::JpegScan;

std::vector<JpegRecipe> UsualKinds(bool progressive) {
  return {{.colors = JpegColors::Grey, .horizontal = 1, .vertical = 1, .progressive = progressive},
          {.horizontal = 1, .vertical = 1, .progressive = progressive},
          {.horizontal = 2, .vertical = 1, .progressive = progressive},
          {.horizontal = 2, .vertical = 2, .progressive = progressive}};
}

std::vector<JpegRecipe> ProgressiveKinds() {
  return UsualKinds(/*progressive=*/true);
}

std::vector<JpegRecipe> UsualKinds() {
  std::vector<JpegRecipe> kinds = UsualKinds(/*progressive=*/false);
  std::ranges::copy(ProgressiveKinds(), std::back_inserter(kinds));
  return kinds;
}

int ChannelsOf(const JpegRecipe& recipe) {
  return recipe.colors == JpegColors::Grey ? 1 : 3;
}

// libjpeg-turbo does not smooth chroma of one or two columns.
bool HasNarrowChroma(const JpegRecipe& recipe) {
  return recipe.colors == JpegColors::YCbCr && recipe.horizontal == 2 && recipe.width <= 4;
}

class WantedDecoderTest : public ::testing::Test {
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
TEST_F(WantedDecoderTest, WantedPixelsEqualLibjpegTurbosInEverySizeAndSampling) {
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
TEST_F(WantedDecoderTest, WantedPixelsEqualLibjpegTurbosForEveryChoiceOfRowsWhereBlocksMeet) {
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

TEST_F(WantedDecoderTest, WantedPixelsEqualLibjpegTurbosInEveryQuality) {
  for (JpegRecipe recipe : UsualKinds()) {
    for (recipe.quality = 1; recipe.quality <= 100; ++recipe.quality) {
      for (const bool ownCodes : {false, true}) {
        recipe.optimised = ownCodes;
        Expect(recipe, fakes::MakeJpeg(recipe), static_cast<unsigned>(recipe.quality) % 3);
      }
    }
  }
}

TEST_F(WantedDecoderTest, WantedPixelsEqualLibjpegTurbosWithRestartMarkers) {
  for (JpegRecipe recipe : UsualKinds()) {
    recipe.width = 70;
    recipe.height = 200;
    for (const unsigned interval : {1U, 2U, 5U, 7U, 9U, 40U}) {
      recipe.restartEvery = interval;
      for (const unsigned number : {0U, 1U, 9U}) Expect(recipe, fakes::MakeJpeg(recipe), number);
    }
  }
}

// The scans of a progressive picture: bands of AC coefficients, the same for each channel, with one more bit in each
// round.
std::vector<JpegScan> ScansOf(int channels, const std::vector<std::pair<int, int>>& bands, int missingBits) {
  std::vector<int> all(static_cast<std::size_t>(channels));
  std::iota(all.begin(), all.end(), 0);
  std::vector<JpegScan> scans;
  for (int lowest = missingBits; lowest >= 0; --lowest) {
    const int knownFrom = lowest == missingBits ? 0 : lowest + 1;
    scans.push_back({.channels = all, .first = 0, .last = 0, .knownFrom = knownFrom, .lowest = lowest});
    for (int channel = channels - 1; channel >= 0; --channel) {
      for (const auto& [first, last] : bands) {
        scans.push_back({{channel}, first, last, knownFrom, lowest});
      }
    }
  }
  return scans;
}

std::array<std::uint8_t, 4> Rough(int x, int y) {
  const unsigned noise = static_cast<unsigned>(x * 7919 + y * 104729) * 2654435761U >> 20;
  const auto channel = [&](int value) { return static_cast<std::uint8_t>(value + static_cast<int>(noise % 61)); };
  return {channel(x / 2), channel(y / 2), channel(100), 0};
}

TEST_F(WantedDecoderTest, WantedPixelsEqualLibjpegTurbosInEveryScriptOfScans) {
  const std::vector<std::vector<std::pair<int, int>>> bandings = {
      {{1, 63}}, {{1, 5}, {6, 63}}, {{40, 63}, {1, 1}, {2, 39}}};
  for (JpegRecipe recipe : ProgressiveKinds()) {
    recipe.width = 90;
    recipe.height = 70;
    for (const auto& bands : bandings) {
      for (const int missingBits : {0, 1, 3, 8}) {
        recipe.scans = ScansOf(ChannelsOf(recipe), bands, missingBits);
        for (const int quality : {20, 75, 95, 100}) {
          recipe.quality = quality;
          recipe.restartEvery = quality == 75 ? 13 : 0;
          Expect(recipe, fakes::MakeJpeg(recipe, Rough), static_cast<unsigned>(quality) % 4);
        }
      }
    }
  }
}

TEST_F(WantedDecoderTest, WantedPixelsEqualLibjpegTurbosWhereEachChannelHasScansOfItsOwn) {
  for (const auto& [horizontal, vertical] : {std::pair(1, 1), {2, 1}, {2, 2}}) {
    JpegRecipe recipe = {.horizontal = horizontal, .vertical = vertical, .progressive = true};
    for (int channel = 0; channel < 3; ++channel) {
      recipe.scans.push_back({{channel}, 0, 0, 0, 1});
      recipe.scans.push_back({{channel}, 1, 63, 0, 2});
    }
    recipe.scans.push_back({{1, 2}, 0, 0, 1, 0});
    recipe.scans.push_back({{0}, 0, 0, 1, 0});
    for (int channel = 0; channel < 3; ++channel) {
      recipe.scans.push_back({{channel}, 1, 63, 2, 1});
      recipe.scans.push_back({{channel}, 1, 63, 1, 0});
    }
    for (recipe.height = 1; recipe.height <= 40; recipe.height += 3) {
      for (recipe.width = 5; recipe.width <= 40; ++recipe.width) {
        recipe.restartEvery = recipe.width % 3 == 0 ? 2 : 0;
        Expect(recipe, fakes::MakeJpeg(recipe, Rough), static_cast<unsigned>(recipe.width) % 5);
      }
    }
  }
}

// The coefficients are as large as 8 bits allow.
TEST_F(WantedDecoderTest, WantedPixelsEqualLibjpegTurbosInTheSharpestProgressivePictures) {
  const auto sharp = [](int x, int y) {
    const auto value = static_cast<std::uint8_t>((x / 3 + y / 2) % 2 == 0 ? 0 : 255);
    return std::array<std::uint8_t, 4>{value, value, static_cast<std::uint8_t>(255 - value), 0};
  };
  for (JpegRecipe recipe : ProgressiveKinds()) {
    recipe.width = recipe.height = 80;
    for (recipe.quality = 10; recipe.quality <= 100; recipe.quality += 15) {
      Expect(recipe, fakes::MakeJpeg(recipe, sharp), 1);
    }
  }
}

// The pictures have all colors. The segments between restart markers are longer than a piece read from the file.
TEST_F(WantedDecoderTest, WantedPixelsEqualLibjpegTurbosInLargeAndRoughPictures) {
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

TEST_F(WantedDecoderTest, OtherKindsOfFilesAreLeftToLibjpegTurbo) {
  for (const auto& recipe : fakes::EveryKindOfJpeg()) {
    const bool usualColors = recipe.colors == JpegColors::Grey || recipe.colors == JpegColors::YCbCr;
    const bool usualSampling = recipe.horizontal <= 2 && recipe.vertical <= recipe.horizontal;
    if (recipe.arithmetic || !usualColors || !usualSampling || HasNarrowChroma(recipe)) {
      ExpectOtherKind(recipe);
    }
  }
}

TEST_F(WantedDecoderTest, HalfHeightAndNarrowChromaAreLeftToLibjpegTurboInEverySize) {
  for (const bool narrow : {false, true}) {
    JpegRecipe recipe = {.horizontal = narrow ? 2 : 1, .vertical = 2};
    for (recipe.height = 1; recipe.height <= 40; ++recipe.height) {
      for (recipe.width = 1; recipe.width <= (narrow ? 4 : 40); ++recipe.width) ExpectOtherKind(recipe);
    }
  }
}

// libjpeg-turbo smooths a picture whose first coefficients are not complete.
TEST_F(WantedDecoderTest, PicturesWithIncompleteScansAreLeftToLibjpegTurbo) {
  for (JpegRecipe recipe : ProgressiveKinds()) {
    for (std::size_t left = 1; left <= 4; ++left) {
      recipe.scans = ScansOf(ChannelsOf(recipe), {{1, 5}, {6, 63}}, 2);
      recipe.scans.resize(recipe.scans.size() - left);
      ExpectOtherKind(recipe);
    }
    recipe.scans = ScansOf(ChannelsOf(recipe), {{1, 62}}, 0);
    ExpectOtherKind(recipe);
  }
}

TEST_F(WantedDecoderTest, PicturesWithVeryManyScansAreLeftToLibjpegTurbo) {
  std::vector<std::pair<int, int>> bands;
  for (int k = 1; k <= 63; ++k) bands.emplace_back(k, k);
  ExpectOtherKind({.progressive = true, .scans = ScansOf(3, bands, 0)});
}

TEST_F(WantedDecoderTest, QuantizationStepsOfSixteenBitsAreLeftToLibjpegTurbo) {
  for (JpegRecipe recipe : UsualKinds()) {
    recipe.quality = 2;
    recipe.wideSteps = true;
    ExpectOtherKind(recipe);
  }
}

}  // namespace
}  // namespace vantorium
