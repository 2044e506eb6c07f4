#include "image/JPEGDecoder.h"
#include "tests/fakes/JpegMaker.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/image/jpeg/WantedRows.h"

#include <random>
#include <stop_token>

namespace vantorium::image {
namespace {

using Rows = std::vector<std::vector<std::uint8_t>>;

constexpr std::uint8_t kGuard = 0xA5;

// A file of one kind in a temporary folder.
struct Sample {
  explicit Sample(const fakes::JpegRecipe& kind) : recipe(kind), path(folder.Write("picture.jpg", MakeJpeg(kind))) {}

  fakes::JpegRecipe recipe;
  fakes::TemporaryFolder folder;
  std::filesystem::path path;
};

// Reads a row into a buffer with one more byte, which the decoder must not change.
std::vector<std::uint8_t> NextRow(JPEGDecoder& decoder) {
  std::vector<std::uint8_t> row(static_cast<std::size_t>(decoder.width()) * 3 + 1, kGuard);
  EXPECT_TRUE(decoder.ReadRow(row.data()));
  EXPECT_EQ(row.back(), kGuard);
  return row;
}

Rows AllRows(const std::filesystem::path& path) {
  JPEGDecoder decoder;
  Rows rows;
  if (!decoder.Open(path) || !decoder.Start()) return rows;
  for (std::int32_t y = 0; y < decoder.height(); ++y) rows.push_back(NextRow(decoder));
  EXPECT_TRUE(decoder.Finish());
  return rows;
}

// Reads some rows and skips the others, singly or many at a time. Always reads the last row, as all production code
// does. Returns the rows that differ from `wanted`.
std::vector<std::int32_t> WrongRows(const std::filesystem::path& path, const Rows& wanted, unsigned seed) {
  std::mt19937 generator(seed);
  const auto most = static_cast<std::int32_t>(1 + generator() % 40);
  JPEGDecoder decoder;
  EXPECT_TRUE(decoder.Open(path) && decoder.Start());
  std::vector<std::int32_t> wrong;
  for (std::int32_t y = 0; y < decoder.height(); ++y) {
    const auto skipped = std::min(static_cast<std::int32_t>(generator() % 1000) % most, decoder.height() - 1 - y);
    EXPECT_TRUE(decoder.SkipRows(skipped));
    y += skipped;
    if (NextRow(decoder) != wanted.at(static_cast<std::size_t>(y))) wrong.push_back(y);
  }
  EXPECT_TRUE(decoder.Finish());
  return wrong;
}

TEST(JPEGDecoder, RowsAfterSkippedRowsAreTheSameAsWithoutSkipping) {
  for (const auto& recipe : fakes::EveryKindOfJpeg()) {
    SCOPED_TRACE(testing::Message() << recipe);
    const Sample sample(recipe);
    const Rows rows = AllRows(sample.path);
    ASSERT_EQ(rows.size(), static_cast<std::size_t>(recipe.height));
    for (unsigned seed = 1; seed <= 12; ++seed) {
      ASSERT_EQ(WrongRows(sample.path, rows, seed), std::vector<std::int32_t>()) << "seed " << seed;
    }
  }
}

TEST(JPEGDecoder, WantedRowsOfAllKindsOfFilesAreTheSameAsWithoutSkipping) {
  for (const auto& recipe : fakes::EveryKindOfJpeg()) {
    const Sample sample(recipe);
    for (const unsigned number : {0U, 3U}) {
      const auto wanted = fakes::SomePixels(recipe.width, recipe.height, number);
      const auto rows = fakes::ReadByLibrary(sample.path, wanted);
      ASSERT_TRUE(rows) << recipe;
      EXPECT_EQ(fakes::ReadAsWanted(sample.path, wanted), rows) << recipe;
    }
  }
}

TEST(JPEGDecoder, ARowThatWasNotWantedCanStillBeRead) {
  const Sample sample({});
  const Rows rows = AllRows(sample.path);
  JPEGDecoder decoder;
  ASSERT_TRUE(decoder.Open(sample.path));
  WantedPixels wanted(decoder.width(), decoder.height());
  wanted.rows[5] = wanted.rows[9] = 1;
  decoder.Want(wanted);
  ASSERT_TRUE(decoder.Start());
  ASSERT_TRUE(decoder.SkipRows(5));
  NextRow(decoder);
  EXPECT_EQ(NextRow(decoder), rows.at(6));
  ASSERT_TRUE(decoder.SkipRows(2));
  EXPECT_EQ(NextRow(decoder), rows.at(9));
}

TEST(JPEGDecoder, OnlyFilesInSeveralScansHoldCoefficients) {
  for (const auto& recipe : fakes::EveryKindOfJpeg()) {
    const Sample sample(recipe);
    JPEGDecoder decoder;
    ASSERT_TRUE(decoder.Open(sample.path)) << recipe;
    const auto pixels = static_cast<std::uint64_t>(recipe.width) * static_cast<std::uint64_t>(recipe.height);
    if (recipe.progressive) {
      EXPECT_GE(decoder.HeldBytes(), 2 * pixels) << recipe;
    } else {
      EXPECT_EQ(decoder.HeldBytes(), 0U) << recipe;
    }
  }
}

TEST(JPEGDecoder, AStopRequestEndsTheDecoding) {
  for (const auto& recipe : fakes::EveryKindOfJpeg()) {
    const Sample sample(recipe);
    for (const bool isWanted : {false, true}) {
      std::stop_source stop;
      JPEGDecoder decoder;
      decoder.StopWith(stop.get_token());
      ASSERT_TRUE(decoder.Open(sample.path)) << recipe;
      if (isWanted) decoder.Want(fakes::SomePixels(recipe.width, recipe.height, 0));
      stop.request_stop();
      std::vector<std::uint8_t> row(static_cast<std::size_t>(decoder.width()) * 3);
      EXPECT_FALSE(decoder.Start() && decoder.ReadRow(row.data())) << recipe;
    }
  }
}

TEST(JPEGDecoder, CallsBeforeAFileIsOpenAreRefused) {
  std::uint8_t row[3] = {};
  JPEGDecoder decoder;
  EXPECT_FALSE(decoder.Open("missing"));
  EXPECT_EQ(decoder.HeldBytes(), 0U);
  EXPECT_FALSE(decoder.Start());
  EXPECT_FALSE(decoder.ReadRow(row));
  EXPECT_FALSE(decoder.SkipRows(1));
  EXPECT_FALSE(decoder.Finish());
}

TEST(JPEGDecoder, FinishingBeforeTheLastRowIsAFailure) {
  const Sample sample({});
  for (const bool isWanted : {false, true}) {
    JPEGDecoder decoder;
    ASSERT_TRUE(decoder.Open(sample.path));
    if (isWanted) decoder.Want(fakes::SomePixels(decoder.width(), decoder.height(), 0));
    ASSERT_TRUE(decoder.Start());
    EXPECT_FALSE(decoder.Finish());
  }
}

TEST(JPEGDecoder, AFileThatFailedKeepsFailing) {
  const fakes::TemporaryFolder folder;
  const std::string jpeg = fakes::MakeJpeg({.width = 100, .height = 100});
  JPEGDecoder decoder;
  ASSERT_TRUE(decoder.Open(folder.Write("cut.jpg", jpeg.substr(0, jpeg.size() / 2))) && decoder.Start());
  std::vector<std::uint8_t> row(300);
  while (decoder.ReadRow(row.data())) {
  }
  EXPECT_FALSE(decoder.ReadRow(row.data()));
  EXPECT_FALSE(decoder.SkipRows(1));
  EXPECT_FALSE(decoder.Finish());
}

TEST(JPEGDecoder, AnotherFileCanBeOpenedAfterABadOne) {
  const fakes::TemporaryFolder folder;
  JPEGDecoder decoder;
  EXPECT_FALSE(decoder.Open(folder.Write("text.jpg", "no picture")));
  EXPECT_FALSE(decoder.Start());
  ASSERT_TRUE(decoder.Open(folder.Write("good.jpg", fakes::MakeJpeg({}))));
  EXPECT_TRUE(decoder.Start());
}

TEST(JPEGDecoder, DamageInSkippedRowsIsDetected) {
  const fakes::TemporaryFolder folder;
  std::string jpeg = fakes::MakeJpeg({.width = 200, .height = 200, .restartEvery = 4});
  jpeg.erase(fakes::PictureDataOf(jpeg) + 100, 400);
  JPEGDecoder decoder;
  ASSERT_TRUE(decoder.Open(folder.Write("damaged.jpg", jpeg)) && decoder.Start());
  std::vector<std::uint8_t> row(600);
  EXPECT_FALSE(decoder.SkipRows(199) && decoder.ReadRow(row.data()) && decoder.Finish());
}

}  // namespace
}  // namespace vantorium::image
