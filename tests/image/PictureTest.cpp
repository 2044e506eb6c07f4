#include "env/RuntimeFailure.h"
#include "image/Filters.h"
#include "image/JPEG.h"
#include "image/Picture.h"
#include "image/literal/ResampleLiteral.h"
#include "tests/fakes/JpegMaker.h"
#include "tests/fakes/TemporaryFolder.h"

#include <thread>

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

class PictureTest : public ::testing::Test {
 protected:
  PictureFiles Make(const std::string& jpeg, const PictureRequest& request) {
    return MakePictures(folder.Write("source.jpg", jpeg), request, {stop.get_token(), budget});
  }

  /// The expected output, made from the whole picture.
  [[nodiscard]] std::string Plainly(const PictureRecipe& recipe) const {
    cDIBSection whole;
    EXPECT_TRUE(LoadJPEGImage(whole, folder.Path() / "source.jpg"));
    if (recipe.size)
      whole = std::move(*image::literal::ResampleLiteral(whole, recipe.size->height, recipe.size->width));
    const auto& filters = recipe.filters;
    if (filters.checkBrightness == 1) Lighten(whole, filters.sliderBrightness);
    if (filters.checkFade == 1) Fade(whole, filters.sliderFade);
    if (filters.checkNoise == 1) {
      NoiseStream stream(0, recipe.noiseNumber);
      AddNoise(whole, filters.sliderNoise, filters.checkNoiseRandom == 1, stream);
    }
    if (filters.checkGrayscale == 1) GrayScale(whole);
    return EncodeJPEG(whole, filters.sliderQuality);
  }

  fakes::TemporaryFolder folder;
  std::stop_source stop;
  CoefficientBudget budget{1 << 20};
};

PictureRecipe Sized(std::int32_t width, std::int32_t height) {
  PictureRecipe recipe;
  recipe.size = PictureSize{width, height};
  return recipe;
}

PictureRecipe Filtered(PictureRecipe recipe) {
  recipe.noiseNumber = 7;
  recipe.filters.checkBrightness = recipe.filters.checkFade = recipe.filters.checkNoise = 1;
  recipe.filters.checkGrayscale = 1;
  return recipe;
}

TEST_F(PictureTest, BothOutputsOfEveryKindOfFileEqualTheLiteralRoutines) {
  for (const auto& kind : fakes::EveryKindOfJpeg()) {
    const std::string jpeg = fakes::MakeJpeg(kind);
    for (const auto& image :
         {Sized(11, 5), Sized(kind.width, kind.height), Sized(kind.width + 60, 3), Sized(1, kind.height * 3),
          PictureRecipe(), Filtered(Sized(9, 20)), Filtered(PictureRecipe())}) {
      for (const auto& thumbnail : {Sized(4, 4), Sized(3, 97), Filtered(Sized(6, 7))}) {
        const auto files = Make(jpeg, {image, thumbnail});
        ASSERT_TRUE(files.decoded) << kind;
        EXPECT_EQ(files.image.Bytes(), Plainly(image)) << kind;
        EXPECT_EQ(files.thumbnail.Bytes(), Plainly(thumbnail)) << kind;
      }
    }
  }
}

TEST_F(PictureTest, AnOutputDoesNotDependOnTheOther) {
  const std::string jpeg = fakes::MakeJpeg({.width = 90, .height = 61});
  const auto both = Make(jpeg, {Sized(20, 30), Sized(7, 8)});
  EXPECT_EQ(Make(jpeg, {Sized(20, 30), {}}).image.Bytes(), both.image.Bytes());
  EXPECT_EQ(Make(jpeg, {{}, Sized(7, 8)}).thumbnail.Bytes(), both.thumbnail.Bytes());
  EXPECT_TRUE(Make(jpeg, {{}, Sized(7, 8)}).image.Bytes().empty());
}

TEST_F(PictureTest, SkippingRowsDoesNotChangeTheOutput) {
  for (int height : {16, 17, 31, 64, 65, 200}) {
    const std::string jpeg = fakes::MakeJpeg({.width = 48, .height = height});
    for (std::int32_t rows : {1, 2, 3, 5, 8, 13}) {
      const auto recipe = Sized(10, rows);
      const auto files = Make(jpeg, {recipe, {}});
      ASSERT_TRUE(files.decoded);
      EXPECT_EQ(files.image.Bytes(), Plainly(recipe)) << height << " to " << rows;
    }
  }
}

TEST_F(PictureTest, APictureOfOneRowOrColumnCanBeEnlarged) {
  for (const auto& [width, height] : {std::pair{1, 1}, {1, 50}, {50, 1}, {2, 2}}) {
    const std::string jpeg = fakes::MakeJpeg({.width = width, .height = height});
    const auto files = Make(jpeg, {Sized(5, 6), Sized(1, 1)});
    ASSERT_TRUE(files.decoded) << width << " x " << height;
    EXPECT_EQ(files.image.Bytes(), Plainly(Sized(5, 6)));
    EXPECT_EQ(files.thumbnail.Bytes(), Plainly(Sized(1, 1)));
  }
}

TEST_F(PictureTest, ATruncatedFileIsNotDecoded) {
  const std::string jpeg = fakes::MakeJpeg({.width = 64, .height = 64});
  for (std::size_t size = fakes::PictureDataOf(jpeg); size + 2 < jpeg.size(); size += 50) {
    EXPECT_FALSE(Make(jpeg.substr(0, size), {Sized(5, 5), Sized(2, 2)}).decoded) << size << " of " << jpeg.size();
  }
}

TEST_F(PictureTest, AFileThatLacksOnlyItsEndMarkerMakesTheSamePictures) {
  for (const bool progressive : {false, true}) {
    const std::string jpeg = fakes::MakeJpeg({.width = 64, .height = 64, .progressive = progressive});
    const auto whole = Make(jpeg, {Sized(5, 5), Sized(2, 2)});
    const auto cut = Make(jpeg.substr(0, jpeg.size() - 2), {Sized(5, 5), Sized(2, 2)});
    ASSERT_TRUE(cut.decoded) << progressive;
    EXPECT_EQ(cut.image.Bytes(), whole.image.Bytes()) << progressive;
    EXPECT_EQ(cut.thumbnail.Bytes(), whole.thumbnail.Bytes()) << progressive;
  }
}

TEST_F(PictureTest, AFileThatIsNotAPictureIsNotDecoded) {
  for (const std::string& bytes : {std::string(), std::string("text"), std::string(5000, '\xFF')}) {
    EXPECT_FALSE(Make(bytes, {Sized(5, 5), {}}).decoded) << bytes.substr(0, 10);
  }
  EXPECT_FALSE(MakePictures(folder.Path() / "missing.jpg", {Sized(5, 5), {}}, {{}, budget}).decoded);
  EXPECT_FALSE(MakePictures(folder.Path(), {Sized(5, 5), {}}, {{}, budget}).decoded);
}

TEST_F(PictureTest, AnOutputWithoutPixelsFailsAlone) {
  const auto files = Make(fakes::MakeJpeg({}), {Sized(10, 0), Sized(4, 4)});
  ASSERT_TRUE(files.decoded);
  EXPECT_THROW(std::ignore = files.image.Bytes(), env::RuntimeFailure);
  EXPECT_EQ(files.thumbnail.Bytes(), Plainly(Sized(4, 4)));
}

TEST_F(PictureTest, ADamagedFileIsNotDecodedEvenIfNoOutputCanBeMade) {
  const std::string jpeg = fakes::MakeJpeg({.width = 64, .height = 64});
  EXPECT_FALSE(Make(jpeg.substr(0, jpeg.size() / 2), {Sized(0, 5), Sized(5, -1)}).decoded);
}

TEST_F(PictureTest, AStopRequestEndsItWithNothingDecoded) {
  stop.request_stop();
  for (const bool progressive : {false, true}) {
    EXPECT_FALSE(Make(fakes::MakeJpeg({.progressive = progressive}), {Sized(5, 5), {}}).decoded);
  }
}

TEST_F(PictureTest, NoiseDiffersBetweenPicturesAndIsTheSameForOnePicture) {
  const std::string jpeg = fakes::MakeJpeg({});
  auto first = Filtered(Sized(20, 20));
  auto second = first;
  second.noiseNumber = 8;
  EXPECT_EQ(Make(jpeg, {first, {}}).image.Bytes(), Make(jpeg, {first, {}}).image.Bytes());
  EXPECT_NE(Make(jpeg, {first, {}}).image.Bytes(), Make(jpeg, {second, {}}).image.Bytes());
}

TEST_F(PictureTest, APictureInSeveralScansWaitsForItsShareOfMemory) {
  CoefficientBudget small(1);
  const auto file = folder.Write("p.jpg", fakes::MakeJpeg({.width = 200, .height = 200, .progressive = true}));
  std::vector<std::jthread> threads;
  std::atomic<int> made = 0;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] { made += MakePictures(file, {Sized(9, 9), {}}, {{}, small}).decoded ? 1 : 0; });
  }
  threads.clear();
  EXPECT_EQ(made, 4);
}

}  // namespace
}  // namespace vantorium::image
