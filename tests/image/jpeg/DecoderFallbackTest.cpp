// When WantedDecoder gives up, libjpeg-turbo decides about the file and decodes the remaining rows.
#include "tests/fakes/JpegMaker.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/image/jpeg/WantedRows.h"

#include <random>
#include <tuple>

#include <gtest/gtest.h>

namespace vantorium {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

constexpr int kWidth = 100;
constexpr int kHeight = 90;

// Calls `change` with each segment that has this marker.
template <typename Change>
void ForEachSegment(const std::string& jpeg, std::string_view marker, Change change) {
  for (std::size_t at = jpeg.find(marker); at != std::string::npos; at = jpeg.find(marker, at + 1)) change(at);
}

class DecoderFallbackTest : public ::testing::Test {
 protected:
  // Returns whether libjpeg-turbo can decode the file. JPEGDecoder must agree with it.
  bool Decodes(const std::string& bytes) {
    const auto file = folder.Write("picture.jpg", bytes);
    bool decodes = false;
    for (const unsigned number : {0U, 4U}) {
      const auto wanted = fakes::SomePixels(kWidth, kHeight, number);
      const auto expected = fakes::ReadByLibrary(file, wanted);
      EXPECT_EQ(fakes::ReadAsWanted(file, wanted), expected);
      decodes = expected.has_value();
    }
    return decodes;
  }
  // WantedDecoder must give up; libjpeg-turbo must find the file good or not, and JPEGDecoder must agree with it.
  void ExpectLibjpegTurbosVerdict(const std::string& jpeg, bool good) {
    const auto file = folder.Write("picture.jpg", jpeg);
    for (const unsigned number : {0U, 3U, 30U}) {
      const auto wanted = fakes::SomePixels(kWidth, kHeight, number);
      const auto expected = fakes::ReadByLibrary(file, wanted);
      EXPECT_EQ(expected.has_value(), good);
      EXPECT_FALSE(fakes::ReadAlone(file, wanted));
      EXPECT_EQ(fakes::ReadAsWanted(file, wanted), expected);
    }
  }

  const std::string jpeg = fakes::MakeJpeg({.width = kWidth, .height = kHeight});
  const std::string progressive = fakes::MakeJpeg({.width = kWidth, .height = kHeight, .progressive = true});
  const std::string withRestarts = fakes::MakeJpeg({.width = kWidth, .height = kHeight, .restartEvery = 5});
  const std::string progressiveWithRestarts =
      fakes::MakeJpeg({.width = kWidth, .height = kHeight, .progressive = true, .restartEvery = 5});
  fakes::TemporaryFolder folder;
};

// The file with `bytes` before the first marker of this kind after the first scan.
std::string WithBytesBetweenScans(const std::string& jpeg, std::string_view marker, std::string_view bytes) {
  return fakes::WithBytesAt(jpeg, jpeg.find(marker, fakes::PictureDataOf(jpeg)), bytes);
}

TEST_F(DecoderFallbackTest, BytesBeforeTheEndMarkerDoNoHarm) {
  for (const std::string_view bytes : {"\x11"sv, "more than a few"sv, "\xFF"sv, "\xFF\xFE\x00\x03!"sv}) {
    ExpectLibjpegTurbosVerdict(fakes::WithBytesAt(jpeg, jpeg.size() - 2, bytes), true);
  }
}

// Fill bytes FF before a marker are legal, so libjpeg-turbo takes an extra FF before a stuffed one for a fill byte. The
// segment seems to end there; no row may be made of the zeros beyond its end.
TEST_F(DecoderFallbackTest, NoRowIsMadeOfMissingData) {
  for (const unsigned interval : {0U, 7U}) {
    const std::string fine = fakes::MakeJpeg(
        {.width = kWidth, .height = kHeight, .horizontal = 1, .vertical = 1, .restartEvery = interval, .quality = 100});
    const std::string_view stuffed("\xFF\0", 2);
    for (std::size_t at = fine.find(stuffed, fakes::PictureDataOf(fine)); at != std::string::npos;
         at = fine.find(stuffed, at + 1)) {
      const auto file = folder.Write("picture.jpg", fakes::WithBytesAt(fine, at, "\xFF"));
      const auto wanted = fakes::SomePixels(kWidth, kHeight, 0);
      const auto expected = fakes::ReadByLibrary(file, wanted);
      ASSERT_TRUE(expected);
      ASSERT_EQ(fakes::ReadAsWanted(file, wanted), expected) << "byte " << at;
    }
  }
}

TEST_F(DecoderFallbackTest, LibjpegTurboContinuesAtAnyRow) {
  for (const int vertical : {1, 2}) {
    std::string high = fakes::MakeJpeg({.width = 20, .height = 900, .vertical = vertical});
    high.insert(high.size() - 2, "more");
    const auto file = folder.Write("picture.jpg", high);
    for (const unsigned number : {0U, 5U, 300U}) {
      const auto wanted = fakes::SomePixels(20, 900, number);
      const auto expected = fakes::ReadByLibrary(file, wanted);
      EXPECT_TRUE(expected);
      EXPECT_FALSE(fakes::ReadAlone(file, wanted));
      EXPECT_EQ(fakes::ReadAsWanted(file, wanted), expected);
    }
  }
}

TEST_F(DecoderFallbackTest, TruncatedDataAreDamaged) {
  const std::size_t data = fakes::PictureDataOf(jpeg);
  for (std::size_t size = data; size + 10 < jpeg.size(); size += 97) {
    ExpectLibjpegTurbosVerdict(jpeg.substr(0, size), false);
    ExpectLibjpegTurbosVerdict(jpeg.substr(0, size) + "\xFF\xD9", false);
  }
}

TEST_F(DecoderFallbackTest, ATruncatedProgressivePictureIsDamaged) {
  for (std::size_t size = fakes::PictureDataOf(progressive); size + 200 < progressive.size(); size += 97) {
    ExpectLibjpegTurbosVerdict(progressive.substr(0, size), false);
  }
}

TEST_F(DecoderFallbackTest, CommentsBetweenScansAreNothingUnusual) {
  const std::string commented = WithBytesBetweenScans(progressive, "\xFF\xC4"sv, "\xFF\xFE\x00\x03!\xFF\xE5\x00\x02"sv);
  const auto file = folder.Write("picture.jpg", commented);
  const auto wanted = fakes::SomePixels(kWidth, kHeight, 2);
  const auto expected = fakes::ReadByLibrary(file, wanted);
  EXPECT_TRUE(expected);
  EXPECT_EQ(fakes::ReadAlone(file, wanted), expected);
}

TEST_F(DecoderFallbackTest, OtherChangesBetweenScansAreLeftToLibjpegTurbo) {
  for (const std::string_view bytes : {"\xFF\xDD\x00\x04\x00\x00"sv, "more"sv, "\xFF"sv}) {
    ExpectLibjpegTurbosVerdict(WithBytesBetweenScans(progressive, "\xFF\xC4"sv, bytes), true);
  }
  const std::size_t first = progressive.find("\xFF\xDA"sv);
  const std::size_t end = progressive.find("\xFF\xC4"sv, first);
  const std::string again = progressive.substr(first, end - first);
  ExpectLibjpegTurbosVerdict(WithBytesBetweenScans(progressive, "\xFF\xC4"sv, again), true);
}

// A scan header ends with its first and last coefficient, and a byte for the lowest bit in the scan before and in this
// one.
std::size_t PlaceOfBits(const std::string& jpeg, std::size_t scan) {
  return scan + 2 + static_cast<unsigned char>(jpeg[scan + 3]) - 1;
}

TEST_F(DecoderFallbackTest, ScansThatDoNotGoOnAreLeftToLibjpegTurbo) {
  ForEachSegment(progressive, "\xFF\xDA"sv, [&](std::size_t scan) {
    const std::size_t bits = PlaceOfBits(progressive, scan);
    for (const char value : {'\x03', '\x32', '\x31', '\x0E'}) {
      std::string changed = progressive;
      changed[bits] = value;
      if (changed == progressive) continue;
      std::ignore = Decodes(changed);
      EXPECT_FALSE(fakes::ReadAlone(folder.Path() / "picture.jpg", fakes::SomePixels(kWidth, kHeight, 1)));
    }
  });
}

TEST_F(DecoderFallbackTest, ABitLeftOutBetweenTwoScansIsDamage) {
  std::string jump = fakes::MakeJpeg({.width = kWidth,
                                      .height = kHeight,
                                      .colors = fakes::JpegColors::Grey,
                                      .progressive = true,
                                      .scans = {{{0}, 0, 0, 0, 0}, {{0}, 1, 63, 0, 2}, {{0}, 1, 63, 2, 1}}});
  EXPECT_TRUE(Decodes(jump));
  jump[PlaceOfBits(jump, jump.rfind("\xFF\xDA"sv))] = '\x20';
  EXPECT_FALSE(Decodes(jump));
}

// Tables between scans, whose symbols follow the marker, the length, a byte for the number and 16 for the lengths.
TEST_F(DecoderFallbackTest, AnyChangedSymbolBetweenScansHasTheSameOutcome) {
  ForEachSegment(progressive, "\xFF\xC4"sv, [&](std::size_t tables) {
    const std::size_t end = tables + 2 + static_cast<unsigned char>(progressive[tables + 3]);
    for (std::size_t symbol = tables + 21; symbol < end; ++symbol) {
      for (const int difference : {1, 15}) {
        std::string changed = progressive;
        changed[symbol] = static_cast<char>(changed[symbol] + difference);
        std::ignore = Decodes(changed);
      }
    }
  });
}

TEST_F(DecoderFallbackTest, MoreSymbolsThanThereAreAreDamage) {
  const std::string tables =
      "\xFF\xC4" + std::string("\x10\x03\x10", 3) + std::string(16, '\xFF') + std::string(4080, '\x01');
  EXPECT_FALSE(Decodes(WithBytesBetweenScans(progressive, "\xFF\xDA"sv, tables)));
}

// In a sequential scan a run of zeros without a value ends the block; in a progressive one it ends several.
TEST_F(DecoderFallbackTest, ARunWithoutAValueEndsABlockOfASequentialScan) {
  const std::string fine = fakes::MakeJpeg(
      {.width = kWidth, .height = kHeight, .colors = fakes::JpegColors::Grey, .quality = 60, .optimised = true});
  const std::size_t tables = fine.rfind("\xFF\xC4"sv);
  const std::size_t end = fine.find('\0', tables + 21);
  ASSERT_LT(end, fakes::PictureDataOf(fine));
  std::string odd = fine;
  odd[end] = '\x30';
  EXPECT_TRUE(Decodes(odd));
  const auto wanted = fakes::SomePixels(kWidth, kHeight, 0);
  const auto rows = fakes::ReadAsWanted(folder.Path() / "picture.jpg", wanted);
  EXPECT_EQ(rows, fakes::ReadByLibrary(folder.Write("fine.jpg", fine), wanted));
}

// Two blocks with a restart marker between them. The scan of AC coefficients is made by hand: the code 0 ends two or
// three blocks, 10 ends one.
TEST_F(DecoderFallbackTest, ARunOfBlocksEndsAtARestartMarker) {
  const fakes::JpegRecipe recipe = {.width = 16,
                                    .height = 8,
                                    .colors = fakes::JpegColors::Grey,
                                    .progressive = true,
                                    .scans = {{{0}, 0, 0, 0, 0}, {{0}, 1, 63, 0, 0}},
                                    .restartEvery = 1};
  const std::string jpeg = fakes::MakeJpeg(recipe);
  const std::string before = jpeg.substr(0, jpeg.find("\xFF\xC4"sv, fakes::PictureDataOf(jpeg)));
  const std::string tables = "\xFF\xC4"s + "\0\x15\x10\1\1\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x10\0"s;
  const std::string scan = "\xFF\xDA"s + "\0\x08\1\1\0\1\x3F\0"s;
  const auto wanted = fakes::SomePixels(recipe.width, recipe.height, 0);
  for (const auto& [data, good] : {std::pair("\x3F\xFF\xD0\xBF\xFF\xD9"s, true), {"\x3F\xFF\xD0\xFF\xD9"s, false}}) {
    const auto file = folder.Write("picture.jpg", before + tables + scan + data);
    const auto expected = fakes::ReadByLibrary(file, wanted);
    EXPECT_EQ(expected.has_value(), good);
    EXPECT_EQ(fakes::ReadAsWanted(file, wanted), expected);
  }
}

TEST_F(DecoderFallbackTest, AWrongRestartMarkerIsDamage) {
  const std::size_t restart = withRestarts.find("\xFF\xD2");
  ASSERT_NE(restart, std::string::npos);
  for (const char second : {'\xD3', '\xD9', '\x01', '\xE0'}) {
    std::string wrong = withRestarts;
    wrong[restart + 1] = second;
    const auto file = folder.Write("picture.jpg", wrong);
    const auto wanted = fakes::SomePixels(kWidth, kHeight, 2);
    EXPECT_FALSE(fakes::ReadAlone(file, wanted));
    EXPECT_EQ(fakes::ReadAsWanted(file, wanted), fakes::ReadByLibrary(file, wanted));
  }
}

TEST_F(DecoderFallbackTest, BytesBeforeARestartMarkerDoNoHarm) {
  ExpectLibjpegTurbosVerdict(fakes::WithBytesAt(withRestarts, withRestarts.find("\xFF\xD2"), "\xFF"), true);
  ExpectLibjpegTurbosVerdict(fakes::WithBytesAt(withRestarts, withRestarts.find("\xFF\xD2"), "more"), true);
}

// Larger quantization steps make coefficients that no encoder writes.
TEST_F(DecoderFallbackTest, CoefficientsThatNoEncoderWritesAreDecodedLikeLibjpegTurbo) {
  std::mt19937 generator(3);
  const auto rough = [&](int, int) {
    std::array<std::uint8_t, 4> pixel = {};
    for (auto& channel : pixel) channel = generator() % 2 == 0 ? 0 : 255;
    return pixel;
  };
  for (const int sampling : {1, 2}) {
    std::string wild = fakes::MakeJpeg(
        {.width = kWidth, .height = kHeight, .horizontal = sampling, .vertical = sampling, .quality = 100}, rough);
    for (const char step : {'\x02', '\x03', '\x04', '\x06', '\x0A', '\x64', '\xFF'}) {
      // The steps of quality 100 are all 1.
      const std::size_t steps = wild.find(std::string(64, wild[wild.find("\xFF\xDB") + 5]));
      ASSERT_NE(steps, std::string::npos);
      std::fill_n(wild.begin() + static_cast<std::ptrdiff_t>(steps), 64, step);
      const auto file = folder.Write("picture.jpg", wild);
      const auto wanted = fakes::SomePixels(kWidth, kHeight, 1);
      EXPECT_EQ(fakes::ReadAsWanted(file, wanted), fakes::ReadByLibrary(file, wanted)) << int{step};
    }
  }
}

// A changed byte may leave a valid file with another picture.
TEST_F(DecoderFallbackTest, AnyChangedByteHasTheSameOutcome) {
  std::mt19937 generator(4);
  for (const std::string& whole : {jpeg, withRestarts, progressive, progressiveWithRestarts}) {
    for (int i = 0; i < 300; ++i) {
      std::string changed = whole;
      const std::size_t data = fakes::PictureDataOf(whole);
      changed[data + generator() % (whole.size() - data)] = static_cast<char>(generator());
      const auto file = folder.Write("picture.jpg", changed);
      const auto wanted = fakes::SomePixels(kWidth, kHeight, static_cast<unsigned>(i) % 9);
      ASSERT_EQ(fakes::ReadAsWanted(file, wanted), fakes::ReadByLibrary(file, wanted)) << "change " << i;
    }
  }
}

}  // namespace
}  // namespace vantorium
