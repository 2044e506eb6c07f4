#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/SampleFakes.h"
#include "ui/qt/QtPicture.h"

#include <QApplication>
#include <QClipboard>
#include <limits>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

constexpr QRgb kEmpty = 0xFFFFFFFF;

/// A pixel whose color encodes its place, counted from the top left corner.
QRgb PixelAt(int x, int y) {
  return qRgb(10 + x, 100 + y, 200);
}

image::cDIBSection Numbered(int width = 3, int height = 2) {
  image::cDIBSection picture;
  EXPECT_TRUE(picture.Create(width, height));
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      std::uint8_t* pixel = picture.Row(height - 1 - y) + 3 * x;
      pixel[0] = 200;
      pixel[1] = static_cast<std::uint8_t>(100 + y);
      pixel[2] = static_cast<std::uint8_t>(10 + x);
    }
  }
  return picture;
}

QImage NumberedImage(int width = 3, int height = 2) {
  QImage image(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) image.setPixel(x, y, PixelAt(x, y));
  }
  return image;
}

/// For each pixel the column and row of the picture that it came from; "--" if it is not from the picture.
std::string Places(const QImage& image) {
  std::string places;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      const bool known = qBlue(pixel) == 200;
      places += known ? std::to_string(qRed(pixel) - 10) + std::to_string(qGreen(pixel) - 100) : "--";
      places += x + 1 < image.width() ? " " : "\n";
    }
  }
  return places;
}

std::string Painted(const BlitArea& to, int sourceX = 0, int sourceY = 0) {
  QImage canvas(4, 3, QImage::Format_RGB32);
  canvas.fill(kEmpty);
  QPainter painter(&canvas);
  PaintPicture(Numbered(), painter, to, sourceX, sourceY);
  return Places(canvas);
}

std::string Loaded(const QImage& source, const BlitArea& from) {
  image::cDIBSection picture = fakes::PlainPicture(3, 2, 0xFFFFFF);
  LoadPictureBlt(picture, source, from);
  return Places(ImageOf(picture));
}

TEST(QtPicture, AnImageIsUprightAndKeepsItsColors) {
  EXPECT_EQ(Places(ImageOf(Numbered())), "00 10 20\n01 11 21\n");
  for (const int width : {1, 2, 3, 4}) {
    const QImage image = ImageOf(Numbered(width, 1));
    EXPECT_EQ(image.width(), width);
    EXPECT_EQ(image.pixel(width - 1, 0), PixelAt(width - 1, 0)) << width;
  }
}

TEST(QtPicture, AnImageIsACopy) {
  QImage image;
  {
    image::cDIBSection picture = Numbered();
    image = ImageOf(picture);
    picture.Row(0)[0] = 0;
  }
  EXPECT_EQ(Places(image), "00 10 20\n01 11 21\n");
}

TEST(QtPicture, PaintingWithDefaultsCopiesTheWholePicture) {
  EXPECT_EQ(Painted({}), "00 10 20 --\n01 11 21 --\n-- -- -- --\n");
}

TEST(QtPicture, PaintingWithAWidthOrHeightOfZeroCopiesNothing) {
  const std::string nothing = "-- -- -- --\n-- -- -- --\n-- -- -- --\n";
  EXPECT_EQ(Painted({.width = 0}), nothing);
  EXPECT_EQ(Painted({.height = 0}), nothing);
  EXPECT_EQ(Painted({.width = 0, .height = 0}), nothing);
}

TEST(QtPicture, PaintingCopiesAnAreaOfThePictureToAnotherPlace) {
  EXPECT_EQ(Painted({.x = 1, .y = 1, .width = 2, .height = 1}, 1, 1), "-- -- -- --\n-- 11 21 --\n-- -- -- --\n");
  EXPECT_EQ(Painted({.x = 2, .y = 2}), "-- -- -- --\n-- -- -- --\n-- -- 00 10\n");
  EXPECT_EQ(Painted({.x = -1, .y = -1}), "11 21 -- --\n-- -- -- --\n-- -- -- --\n");
}

TEST(QtPicture, PaintingIsClippedToThePicture) {
  EXPECT_EQ(Painted({}, 2, 1), "21 -- -- --\n-- -- -- --\n-- -- -- --\n");
  EXPECT_EQ(Painted({}, -1, -1), "-- -- -- --\n-- 00 10 --\n-- -- -- --\n");
  EXPECT_EQ(Painted({.width = 9, .height = 9}), "00 10 20 --\n01 11 21 --\n-- -- -- --\n");
  constexpr int kMost = std::numeric_limits<int>::max();
  constexpr int kLeast = std::numeric_limits<int>::min();
  const std::string nothing = "-- -- -- --\n-- -- -- --\n-- -- -- --\n";
  EXPECT_EQ(Painted({.width = kMost, .height = kMost}, kMost, 0), nothing);
  EXPECT_EQ(Painted({.width = kMost, .height = kMost}, 0, kLeast), nothing);
  EXPECT_EQ(Painted({}, 3, 0), nothing);
}

TEST(QtPicture, APictureWithoutPixelsPaintsAndLoadsNothing) {
  image::cDIBSection picture = Numbered();
  picture.ClearUp();
  EXPECT_EQ(picture.width(), 3);
  EXPECT_TRUE(ImageOf(picture).isNull());
  QImage canvas(3, 2, QImage::Format_RGB32);
  canvas.fill(kEmpty);
  QPainter painter(&canvas);
  PaintPicture(picture, painter);
  EXPECT_EQ(Places(canvas), "-- -- --\n-- -- --\n");
  LoadPictureBlt(picture, NumberedImage());
  EXPECT_EQ(picture.DIBSectionBitsPtr(), nullptr);
}

TEST(QtPicture, LoadingCopiesAnAreaIntoTheTopLeftCorner) {
  const QImage source = NumberedImage(5, 4);
  EXPECT_EQ(Loaded(source, {}), "00 10 20\n01 11 21\n");
  EXPECT_EQ(Loaded(source, {.x = 2, .y = 2}), "22 32 42\n23 33 43\n");
  EXPECT_EQ(Loaded(source, {.x = 1, .y = 1, .width = 2, .height = 1}), "11 21 --\n-- -- --\n");
  EXPECT_EQ(Loaded(source, {.width = 5, .height = 4}), "00 10 20\n01 11 21\n") << "clipped to the picture";
}

TEST(QtPicture, LoadingIsClippedToTheSource) {
  EXPECT_EQ(Loaded(NumberedImage(2, 1), {}), "00 10 --\n-- -- --\n");
  EXPECT_EQ(Loaded(NumberedImage(), {.x = -1, .y = -1}), "-- -- --\n-- 00 10\n");
  EXPECT_EQ(Loaded(NumberedImage(), {.x = 3}), "-- -- --\n-- -- --\n");
  constexpr int kMost = std::numeric_limits<int>::max();
  EXPECT_EQ(Loaded(NumberedImage(), {.width = kMost, .height = kMost}), "00 10 20\n01 11 21\n");
}

TEST(QtPicture, LoadingWithAWidthOrHeightOfZeroCopiesNothing) {
  EXPECT_EQ(Loaded(NumberedImage(), {.width = 0}), "-- -- --\n-- -- --\n");
  EXPECT_EQ(Loaded(NumberedImage(), {.height = 0}), "-- -- --\n-- -- --\n");
  EXPECT_EQ(Loaded(NumberedImage(), {.width = 0, .height = 0}), "-- -- --\n-- -- --\n");
}

TEST(QtPicture, LoadingDoesNotChangeThePadding) {
  image::cDIBSection picture = Numbered(3, 2);
  for (int y = 0; y < 2; ++y) std::fill_n(picture.Row(y) + 9, 3, std::uint8_t{77});
  LoadPictureBlt(picture, NumberedImage(9, 9));
  for (int y = 0; y < 2; ++y) EXPECT_EQ(std::string(picture.Row(y) + 9, picture.Row(y) + 12), "MMM") << y;
}

TEST(QtPicture, AnImageInAnyFormatMakesAPicture) {
  for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB888,
                                      QImage::Format_BGR888, QImage::Format_RGBA64}) {
    image::cDIBSection picture;
    ASSERT_TRUE(CreateFromPicture(picture, NumberedImage().convertToFormat(format))) << format;
    EXPECT_EQ(Places(ImageOf(picture)), "00 10 20\n01 11 21\n") << format;
  }
}

TEST(QtPicture, AnImageWithAPixelRatioKeepsItsPixels) {
  QImage fine = NumberedImage();
  fine.setDevicePixelRatio(2);
  image::cDIBSection picture;
  ASSERT_TRUE(CreateFromPicture(picture, fine));
  EXPECT_EQ(Places(ImageOf(picture)), "00 10 20\n01 11 21\n");
}

TEST(QtPicture, TransparentPixelsBecomeWhite) {
  QImage glass(2, 1, QImage::Format_ARGB32);
  glass.setPixel(0, 0, qRgba(0, 0, 0, 0));
  glass.setPixel(1, 0, qRgba(0, 0, 0, 255));
  image::cDIBSection picture;
  ASSERT_TRUE(CreateFromPicture(picture, glass));
  EXPECT_EQ(ImageOf(picture).pixel(0, 0), 0xFFFFFFFF);
  EXPECT_EQ(ImageOf(picture).pixel(1, 0), 0xFF000000);
}

TEST(QtPicture, ASizeThatCannotBeAllocatedLeavesThePictureEmpty) {
  image::cDIBSection picture = Numbered();
  EXPECT_FALSE(CreateFromPicture(picture, QImage()));
  EXPECT_EQ(picture.DIBSectionBitsPtr(), nullptr);
}

TEST(QtPicture, TheClipboardGetsACopy) {
  fakes::RecordingMessageBox boxes;
  {
    const image::cDIBSection picture = Numbered();
    EXPECT_TRUE(CopyToClipboard(picture, false, boxes));
  }
  EXPECT_EQ(Places(QApplication::clipboard()->image()), "00 10 20\n01 11 21\n");
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST(QtPicture, TheClipboardRefusesAnEmptyPicture) {
  fakes::RecordingMessageBox boxes;
  EXPECT_FALSE(CopyToClipboard({}, false, boxes));
}

TEST(QtPicture, TheClipboardHasOnlyTheBitmapFormat) {
  fakes::RecordingMessageBox boxes;
  QApplication::clipboard()->setText("before");
  EXPECT_FALSE(CopyToClipboard(Numbered(), true, boxes));
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].text, "I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!");
  EXPECT_EQ(QApplication::clipboard()->text(), "before");
}

}  // namespace
}  // namespace vantorium::ui
