#include "env/RuntimeFailure.h"
#include "image/JPEG.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/JpegMaker.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/image/PictureFixtures.h"

#include <cstdlib>

#include <sys/stat.h>

namespace vantorium::image {
namespace {

using fakes::JpegColors;
using fakes::MakeJpeg;
using fakes::PixelAt;
using fakes::RGB;

class JPEG : public testing::Test {
 protected:
  [[nodiscard]] bool Loads(const std::string& bytes) {
    dib_ = {};
    return LoadJPEGImage(dib_, folder_.Write("picture.jpg", bytes));
  }

  // The first difference from libjpeg-turbo's own decoding; empty if there is none.
  [[nodiscard]] std::string DifferenceToLibrary(const std::string& jpeg) const {
    const auto rgb = fakes::DecodeToRGB(jpeg);
    for (std::int32_t y = 0; y < dib_.height(); ++y) {
      for (std::int32_t x = 0; x < dib_.width(); ++x) {
        const std::size_t at = 3 * static_cast<std::size_t>((dib_.height() - 1 - y) * dib_.width() + x);
        const RGB wanted = {rgb[at], rgb[at + 1], rgb[at + 2]};
        if (PixelAt(dib_, x, y) != wanted) return "column " + std::to_string(x) + " row " + std::to_string(y);
      }
    }
    return {};
  }

  [[nodiscard]] bool ShowsTheSameAs(const cDIBSection& other) const {
    bool same = dib_.width() == other.width() && dib_.height() == other.height();
    for (std::int32_t y = 0; same && y < other.height(); ++y) {
      same = std::equal(other.Row(y), other.Row(y) + 3 * static_cast<std::ptrdiff_t>(other.width()), dib_.Row(y));
    }
    return same;
  }

  fakes::TemporaryFolder folder_;
  cDIBSection dib_;
};

TEST_F(JPEG, EveryKindOfFileIsLoadedAsLibjpegTurboDecodesIt) {
  for (const auto& recipe : fakes::EveryKindOfJpeg()) {
    const std::string jpeg = MakeJpeg(recipe);
    ASSERT_TRUE(Loads(jpeg)) << recipe;
    EXPECT_EQ(dib_.width(), recipe.width) << recipe;
    EXPECT_EQ(dib_.height(), recipe.height) << recipe;
    if (recipe.colors == JpegColors::CMYK || recipe.colors == JpegColors::YCCK) continue;
    EXPECT_EQ(DifferenceToLibrary(jpeg), "") << recipe;
  }
}

TEST_F(JPEG, TheSizeIsReadFromEveryKindOfFile) {
  for (const auto& recipe : fakes::EveryKindOfJpeg()) {
    std::int32_t width = 0;
    std::int32_t height = 0;
    ASSERT_TRUE(ReadJPEGSize(folder_.Write("picture.jpg", MakeJpeg(recipe)), width, height)) << recipe;
    EXPECT_EQ(width, recipe.width) << recipe;
    EXPECT_EQ(height, recipe.height) << recipe;
  }
}

TEST_F(JPEG, TheBottomRowIsFirstInMemory) {
  const auto pixels = [](int, int y) { return std::array<std::uint8_t, 4>{std::uint8_t(y < 8 ? 250 : 10), 0, 0, 0}; };
  ASSERT_TRUE(Loads(MakeJpeg({.width = 8, .height = 16, .colors = JpegColors::Grey, .quality = 100}, pixels)));
  EXPECT_NEAR(PixelAt(dib_, 0, 0).r, 10, 2);
  EXPECT_NEAR(PixelAt(dib_, 0, 15).r, 250, 2);
}

TEST_F(JPEG, AGreyFileIsLoadedAsThreeEqualBytesAndSavedInColor) {
  ASSERT_TRUE(Loads(MakeJpeg({.colors = JpegColors::Grey})));
  for (std::int32_t x = 0; x < dib_.width(); ++x) {
    const RGB pixel = PixelAt(dib_, x, 3);
    EXPECT_EQ(pixel, (RGB{pixel.g, pixel.g, pixel.g}));
  }
  const std::string saved = EncodeJPEG(dib_, 85);
  EXPECT_EQ(saved.at(fakes::FrameHeaderOf(saved) + 9), 3);
}

// Cyan absorbs red, magenta green, yellow blue, and black all three.
TEST_F(JPEG, InksAreConvertedToTheLightThatTheyLeave) {
  struct Case {
    std::array<std::uint8_t, 4> inks;
    RGB light;
  };
  const Case cases[] = {{{0, 0, 0, 0}, {255, 255, 255}},      {{255, 0, 0, 0}, {0, 255, 255}},
                        {{0, 255, 0, 0}, {255, 0, 255}},      {{0, 0, 255, 0}, {255, 255, 0}},
                        {{0, 0, 0, 255}, {0, 0, 0}},          {{255, 255, 255, 0}, {0, 0, 0}},
                        {{51, 102, 153, 0}, {204, 153, 102}}, {{51, 102, 153, 51}, {163, 122, 82}}};
  for (const auto& [inks, light] : cases) {
    for (const bool adobe : {true, false}) {
      for (const auto colors : {JpegColors::CMYK, JpegColors::YCCK}) {
        if (!adobe && colors == JpegColors::YCCK) continue;  // only the marker distinguishes YCCK from CMYK
        const auto held = [&, &inks = inks](int, int) {
          auto pixel = inks;
          for (auto& ink : pixel) ink = adobe ? static_cast<std::uint8_t>(255 - ink) : ink;
          return pixel;
        };
        ASSERT_TRUE(
            Loads(MakeJpeg({.width = 9, .height = 9, .colors = colors, .quality = 100, .adobeMarker = adobe}, held)));
        const RGB got = PixelAt(dib_, 4, 4);
        const bool near =
            std::abs(got.r - light.r) <= 2 && std::abs(got.g - light.g) <= 2 && std::abs(got.b - light.b) <= 2;
        EXPECT_TRUE(near) << "got " << got << ", want " << light << (adobe ? " inverted " : " plain ")
                          << (colors == JpegColors::CMYK ? "CMYK" : "YCCK");
      }
    }
  }
}

constexpr std::size_t kEndMark = 2;

TEST_F(JPEG, AFileWhoseDataAreCutOffAnywhereIsNotLoaded) {
  for (const fakes::JpegRecipe& kind :
       {fakes::JpegRecipe{}, {.progressive = true}, {.scanPerChannel = true}, {.arithmetic = true}}) {
    for (const unsigned restart : {0U, 2U}) {
      fakes::JpegRecipe recipe = kind;
      recipe.restartEvery = restart;
      const std::string jpeg = MakeJpeg(recipe);
      const std::size_t whole = jpeg.size() - kEndMark;
      for (std::size_t length = 0; length < whole; length += length + 40 < whole ? 7 : 1) {
        EXPECT_FALSE(Loads(jpeg.substr(0, length))) << length << " of " << jpeg.size() << " " << recipe;
      }
      EXPECT_TRUE(Loads(jpeg)) << recipe;
    }
  }
}

// With spare bytes, the decoder outputs all rows before it looks for the marker.
TEST_F(JPEG, AnArithmeticFileWithoutItsEndMarkerIsNotLoaded) {
  for (int width = 1; width <= 40; ++width) {
    const std::string jpeg = MakeJpeg({.width = width, .arithmetic = true});
    const std::size_t end = jpeg.size() - kEndMark;
    const std::string_view spare("\0\0\0\0\0\0\0\0", 8);
    EXPECT_TRUE(Loads(fakes::WithBytesAt(jpeg, end, spare))) << width;
    EXPECT_FALSE(Loads(jpeg.substr(0, end))) << width;
    EXPECT_FALSE(Loads(jpeg.substr(0, end).append(spare))) << width;
  }
}

TEST_F(JPEG, AFileThatLacksOnlyItsEndMarkerIsLoaded) {
  auto kinds = fakes::EveryKindOfJpeg();
  kinds.push_back({.scanPerChannel = true});
  for (const auto& recipe : kinds) {
    if (recipe.arithmetic) continue;  // without the end marker nothing shows that such data are complete
    const std::string jpeg = MakeJpeg(recipe);
    ASSERT_TRUE(Loads(jpeg)) << recipe;
    const cDIBSection whole = std::move(dib_);
    for (const std::size_t lost : {std::size_t{1}, kEndMark}) {
      ASSERT_TRUE(Loads(jpeg.substr(0, jpeg.size() - lost))) << recipe << " without the last " << lost;
      EXPECT_TRUE(ShowsTheSameAs(whole)) << recipe;
    }
  }
}

// Such a file has all rows of the picture, but none of them completely.
TEST_F(JPEG, AFileThatEndsBetweenTwoScansIsNotLoaded) {
  for (const bool progressive : {false, true}) {
    const std::string jpeg = MakeJpeg({.progressive = progressive, .scanPerChannel = !progressive});
    std::size_t scans = 0;
    for (std::size_t scan = jpeg.find("\xFF\xDA"); scan != std::string::npos; scan = jpeg.find("\xFF\xDA", scan + 1)) {
      ++scans;
      const std::size_t tables = jpeg.rfind("\xFF\xC4", scan);
      for (const std::size_t end : {scan, tables}) {
        EXPECT_FALSE(Loads(jpeg.substr(0, end))) << "before scan " << scans << (progressive ? " progressive" : "");
      }
    }
    EXPECT_GE(scans, 3U);
  }
}

TEST_F(JPEG, DamagedDataAreNotLoaded) {
  for (const bool progressive : {false, true}) {
    const std::string jpeg = MakeJpeg({.width = 200, .height = 150, .progressive = progressive, .restartEvery = 5});
    std::string zeros = jpeg;
    const std::size_t data = fakes::PictureDataOf(jpeg);
    zeros.replace(data + 40, 300, 300, '\0');
    EXPECT_FALSE(Loads(zeros)) << progressive;
    std::string ones = jpeg;
    ones.replace(data + 40, 300, 300, '\xFF');
    EXPECT_FALSE(Loads(ones)) << progressive;
    std::string hole = jpeg;
    EXPECT_FALSE(Loads(hole.erase(data + 40, 300))) << progressive;
  }
}

TEST_F(JPEG, AMissingRestartIntervalIsDamage) {
  const std::string jpeg = MakeJpeg({.width = 200, .height = 150, .restartEvery = 5});
  const std::size_t second = jpeg.find("\xFF\xD1");
  const std::size_t third = jpeg.find("\xFF\xD2");
  EXPECT_FALSE(Loads(std::string(jpeg).erase(second, third - second)));
}

TEST_F(JPEG, FilesWithHarmlessOdditiesAreLoaded) {
  const std::string jpeg = MakeJpeg({});
  ASSERT_TRUE(Loads(jpeg));
  const cDIBSection plain = std::move(dib_);
  const std::string odd[] = {
      fakes::WithBytesAt(jpeg, fakes::FrameHeaderOf(jpeg), "stray"),
      fakes::WithBytesAt(jpeg, fakes::FrameHeaderOf(jpeg), std::string("\xFF\xF3\0\x06nine", 8)),
      fakes::WithBytesAt(jpeg, fakes::FrameHeaderOf(jpeg), std::string("\xFF\x22\0\x02", 4)),
      fakes::WithBytesAt(jpeg, jpeg.size() - 2, std::string("\xFF\xF0\0\x04no", 6)),
      fakes::WithBytesAt(jpeg, fakes::FrameHeaderOf(jpeg), std::string("\xFF\xE5\0\x05xyz", 7)),
      fakes::WithBytesAt(jpeg, fakes::FrameHeaderOf(jpeg), "\xFF\xFF\xFF"),
      fakes::WithBytesAt(jpeg, jpeg.size() - 2, std::string(5, '\0')),
      jpeg + "data after the end" + std::string(100000, '\xFF'),
      jpeg + jpeg,
  };
  for (const auto& bytes : odd) {
    ASSERT_TRUE(Loads(bytes)) << &bytes - odd;
    EXPECT_TRUE(ShowsTheSameAs(plain)) << &bytes - odd;
  }
}

TEST_F(JPEG, AnUnreadableFileIsRefusedAndThePictureStays) {
  std::filesystem::create_directory(folder_.Path() / "folder");
  ASSERT_EQ(::mkfifo((folder_.Path() / "pipe").c_str(), 0600), 0);
  folder_.Write("empty", "");
  folder_.Write("text", "This is no picture.\r\n");
  folder_.Write("start", "\xFF\xD8");
  folder_.Write("tables", "\xFF\xD8\xFF\xD9");
  folder_.Write("twelve", fakes::ClaimingPrecision(MakeJpeg({}), 12));
  folder_.Write("flat", fakes::ClaimingSize(MakeJpeg({}), 0, 10));
  folder_.Write("huge", fakes::ClaimingSize(MakeJpeg({}), 65535, 65535));
  for (const char* name :
       {"missing", "folder", "pipe", "empty", "text", "start", "tables", "twelve", "flat", "huge", "text/below", ""}) {
    const auto path = *name == '\0' ? std::filesystem::path() : folder_.Path() / name;
    std::int32_t width = 3;
    std::int32_t height = 4;
    EXPECT_FALSE(ReadJPEGSize(path, width, height)) << name;
    EXPECT_EQ(width, 3) << name;
    EXPECT_EQ(height, 4) << name;
    cDIBSection dib = fakes::Plain(2, 2, {1, 2, 3});
    EXPECT_FALSE(LoadJPEGImage(dib, path)) << name;
    EXPECT_NE(dib.DIBSectionBitsPtr(), nullptr) << name;
  }
}

TEST_F(JPEG, AHeaderWithMorePixelsThanTheFileCanHoldAllocatesNoMemory) {
  for (const bool progressive : {false, true}) {
    for (const bool arithmetic : {false, true}) {
      for (const auto colors : {JpegColors::Grey, JpegColors::YCbCr, JpegColors::YCCK}) {
        for (const int side : {9000, 65000}) {
          const fakes::JpegRecipe recipe = {.colors = colors, .progressive = progressive, .arithmetic = arithmetic};
          const auto path = folder_.Write("claim.jpg", fakes::ClaimingSize(MakeJpeg(recipe), side, side));
          cDIBSection dib = fakes::Plain(2, 2, {1, 2, 3});
          EXPECT_FALSE(LoadJPEGImage(dib, path)) << recipe;
          EXPECT_EQ(dib.DIBSectionBitsPtr(), nullptr) << recipe;
          std::int32_t width = 0;
          std::int32_t height = 0;
          EXPECT_TRUE(ReadJPEGSize(path, width, height)) << recipe;
          EXPECT_EQ(width, side) << recipe;
        }
      }
    }
  }
}

TEST_F(JPEG, TheMostCompressiblePicturesAreLoaded) {
  const auto black = [](int, int) { return std::array<std::uint8_t, 4>{}; };
  for (const bool progressive : {false, true}) {
    for (const bool arithmetic : {false, true}) {
      for (const auto colors : {JpegColors::Grey, JpegColors::YCbCr}) {
        const fakes::JpegRecipe recipe = {
            .width = 1500, .height = 1000, .colors = colors, .progressive = progressive, .arithmetic = arithmetic};
        EXPECT_TRUE(Loads(MakeJpeg(recipe, black))) << recipe;
      }
    }
  }
}

// Repeating the first scan is valid, because it only repeats its data.
TEST_F(JPEG, FilesWithThousandsOfScansAreRefused) {
  const std::string jpeg = MakeJpeg({.colors = JpegColors::Grey, .progressive = true});
  const std::size_t first = jpeg.find("\xFF\xDA");
  const std::size_t tables = jpeg.find("\xFF\xC4", first);
  const std::string scan = jpeg.substr(first, tables - first);
  const auto repeated = [&](int times) {
    std::string bytes = jpeg.substr(0, first);
    for (int i = 0; i < times; ++i) bytes += scan;
    return bytes + jpeg.substr(tables);
  };
  EXPECT_TRUE(Loads(repeated(20)));
  EXPECT_FALSE(Loads(repeated(2000)));
}

TEST_F(JPEG, ASavedPictureIsLoadedAgain) {
  const cDIBSection dib = fakes::Plain(13, 7, {200, 100, 50});
  const auto path = folder_.Path() / "saved.jpg";
  SaveJPEGImage(dib, path, 100);
  ASSERT_TRUE(LoadJPEGImage(dib_, path));
  EXPECT_EQ(dib_.width(), 13);
  EXPECT_EQ(dib_.height(), 7);
  EXPECT_NEAR(PixelAt(dib_, 6, 3).r, 200, 2);
  EXPECT_NEAR(PixelAt(dib_, 6, 3).g, 100, 2);
  EXPECT_NEAR(PixelAt(dib_, 6, 3).b, 50, 2);
}

TEST_F(JPEG, ALoadedPictureCanBeSavedToItsFile) {
  const auto path = folder_.Write("picture.jpg", MakeJpeg({}));
  ASSERT_TRUE(LoadJPEGImage(dib_, path));
  SaveJPEGImage(dib_, path, 40);
  EXPECT_EQ(fakes::TemporaryFolder::ReadFile(path), EncodeJPEG(dib_, 40));
}

TEST_F(JPEG, AFileThatCannotBeWrittenFailsWithTheErrorNumberOfLibjpeg) {
  const auto readOnly = folder_.Write("old.jpg", "old");
  std::filesystem::permissions(readOnly, std::filesystem::perms::owner_read);
  std::filesystem::create_directory(folder_.Path() / "folder");
  const cDIBSection dib = fakes::Plain(4, 4, {});
  for (const auto& path : {readOnly, folder_.Path() / "folder", folder_.Path() / "missing" / "new.jpg"}) {
    try {
      SaveJPEGImage(dib, path, 85);
      ADD_FAILURE() << path << " was written";
    } catch (const env::RuntimeFailure& failure) {
      EXPECT_EQ(failure.Number(), 26001) << path;
      EXPECT_TRUE(failure.Description().starts_with("Failed to save to JPG ")) << failure.Description();
    }
  }
  EXPECT_EQ(folder_.Read("old.jpg"), "old");
}

TEST_F(JPEG, APictureThatCannotBeEncodedFailsWithTheErrorNumberOfLibjpeg) {
  EXPECT_EQ(fakes::FailureOf([] { std::ignore = EncodeJPEG(cDIBSection(), 85); }), env::FailureKind::JPEGLibrary);
  cDIBSection cleared = fakes::Plain(4, 4, {});
  cleared.ClearUp();
  EXPECT_EQ(fakes::FailureOf([&] { std::ignore = EncodeJPEG(cleared, 85); }), env::FailureKind::JPEGLibrary);
  const cDIBSection wide = fakes::Plain(65501, 1, {});
  EXPECT_EQ(fakes::FailureOf([&] { std::ignore = EncodeJPEG(wide, 85); }), env::FailureKind::JPEGLibrary);
}

}  // namespace
}  // namespace vantorium::image
