// When WantedDecoder gives up, libjpeg-turbo decides about the file and decodes the remaining rows.
#include "tests/fakes/JpegMaker.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/image/jpeg/WantedRows.h"

#include <random>

#include <gtest/gtest.h>

namespace vantorium {
namespace {

using namespace std::string_view_literals;

constexpr int kWidth = 100;
constexpr int kHeight = 90;

class DecoderFallbackTest : public ::testing::Test {
 protected:
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

TEST_F(DecoderFallbackTest, ScansThatDoNotGoOnAreDamage) {
  // A scan header ends with its first and last coefficient and the bits of both.
  std::size_t scan = progressive.find("\xFF\xDA"sv);
  for (int i = 0; scan != std::string::npos; ++i, scan = progressive.find("\xFF\xDA"sv, scan + 1)) {
    const std::size_t bits = scan + 2 + static_cast<unsigned char>(progressive[scan + 3]) - 1;
    for (const char value : {'\x03', '\x32', '\x31', '\x0E'}) {
      std::string changed = progressive;
      if (changed[bits] == value) continue;
      changed[bits] = value;
      const auto file = folder.Write("picture.jpg", changed);
      const auto wanted = fakes::SomePixels(kWidth, kHeight, 1);
      EXPECT_FALSE(fakes::ReadAlone(file, wanted)) << "scan " << i;
      EXPECT_EQ(fakes::ReadAsWanted(file, wanted), fakes::ReadByLibrary(file, wanted)) << "scan " << i;
    }
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
