#include "image/JPEG.h"
#include "image/JPEGEncoder.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/JpegMaker.h"
#include "tests/image/PictureFixtures.h"

namespace vantorium::image {
namespace {

unsigned ByteAt(const std::string& bytes, std::size_t place) {
  return static_cast<unsigned char>(bytes.at(place));
}

TEST(JPEGEncoder, FilesAreBaselineWithChromaHalvedInBothDirections) {
  const std::string jpeg = EncodeJPEG(fakes::Random(20, 10, 1), 85);
  const std::size_t frame = fakes::FrameHeaderOf(jpeg);
  EXPECT_EQ(ByteAt(jpeg, frame + 1), 0xC0U);
  EXPECT_EQ(ByteAt(jpeg, frame + 4), 8U);
  EXPECT_EQ(ByteAt(jpeg, frame + 6), 10U);
  EXPECT_EQ(ByteAt(jpeg, frame + 8), 20U);
  EXPECT_EQ(ByteAt(jpeg, frame + 9), 3U);
  const unsigned samplings[] = {ByteAt(jpeg, frame + 11), ByteAt(jpeg, frame + 14), ByteAt(jpeg, frame + 17)};
  EXPECT_EQ(samplings[0], 0x22U);
  EXPECT_EQ(samplings[1], 0x11U);
  EXPECT_EQ(samplings[2], 0x11U);
}

// Compares with libjpeg-turbo's own encoding at its defaults.
TEST(JPEGEncoder, TheBytesEqualThoseOfLibjpegTurbosDefaultsAtEachQuality) {
  for (const int quality : {1, 24, 25, 50, 85, 99, 100}) {
    const cDIBSection dib = fakes::Random(35, 22, static_cast<unsigned>(quality));
    const auto pixels = [&dib](int x, int y) {
      const auto color = fakes::PixelAt(dib, x, 21 - y);
      return std::array<std::uint8_t, 4>{static_cast<std::uint8_t>(color.r), static_cast<std::uint8_t>(color.g),
                                         static_cast<std::uint8_t>(color.b), 0};
    };
    EXPECT_EQ(EncodeJPEG(dib, quality), fakes::MakeJpeg({.width = 35, .height = 22, .quality = quality}, pixels))
        << quality;
  }
}

TEST(JPEGEncoder, LargeFilesAreComplete) {
  const std::string jpeg = EncodeJPEG(fakes::Random(600, 500, 3), 100);
  EXPECT_GT(jpeg.size(), 200000U);
  EXPECT_EQ(jpeg.substr(jpeg.size() - 2), "\xFF\xD9");
  EXPECT_EQ(fakes::DecodeToRGB(jpeg).size(), 600U * 500 * 3);
}

TEST(JPEGEncoder, ThePaddingOfRowsIsNotEncoded) {
  cDIBSection one = fakes::Random(5, 5, 1);
  cDIBSection other = fakes::CopyOf(one);
  for (std::int32_t y = 0; y < 5; ++y) other.Row(y)[15] = 0;
  EXPECT_EQ(EncodeJPEG(one, 85), EncodeJPEG(other, 85));
}

TEST(JPEGEncoder, FinishingBeforeTheLastRowIsAFailure) {
  JPEGEncoder encoder(4, 4, 85);
  const std::vector<std::uint8_t> row(12);
  encoder.WriteRow(row.data());
  EXPECT_EQ(fakes::FailureOf([&] { std::ignore = encoder.Finish(); }), env::FailureKind::JPEGLibrary);
}

TEST(JPEGEncoder, SizesThatJPEGCannotStoreAreAFailure) {
  constexpr std::pair<std::int32_t, std::int32_t> kSizes[] = {{0, 4}, {4, 0}, {-1, 4}, {65501, 4}, {4, 70000}};
  for (const auto& [width, height] : kSizes) {
    EXPECT_EQ(fakes::FailureOf([&, &w = width, &h = height] { JPEGEncoder(w, h, 85); }), env::FailureKind::JPEGLibrary)
        << width << " x " << height;
  }
}

}  // namespace
}  // namespace vantorium::image
