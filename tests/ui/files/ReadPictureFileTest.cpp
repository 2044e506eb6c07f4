#include "tests/fakes/TemporaryFolder.h"
#include "ui/files/ReadPictureFile.h"

#include <QBuffer>
#include <QImageReader>
#include <array>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

/// A GIF file of 6 x 4 red pixels.
constexpr std::array<unsigned char, 47> kGif = {0x47, 0x49, 0x46, 0x38, 0x39, 0x61, 0x06, 0x00, 0x04, 0x00, 0x80, 0x00,
                                                0x00, 0xFF, 0x00, 0x00, 0x00, 0x00, 0x00, 0x2C, 0x00, 0x00, 0x00, 0x00,
                                                0x06, 0x00, 0x04, 0x00, 0x00, 0x02, 0x0E, 0x04, 0x08, 0x10, 0x20, 0x40,
                                                0x80, 0x00, 0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x50, 0x00, 0x3B};

/// A sequential device. Qt cannot look ahead in it for the size of a GIF picture.
class Stream : public QBuffer {
 public:
  [[nodiscard]] bool isSequential() const override { return true; }
};

/// The middle of the GIF picture in a stream that is cut off after `length` bytes.
QImage MiddleOfStream(qsizetype length, QSize atMost) {
  Stream stream;
  stream.setData(QByteArray(reinterpret_cast<const char*>(kGif.data()), length));
  stream.open(QIODevice::ReadOnly);
  QImageReader reader(&stream, "gif");
  EXPECT_FALSE(reader.size().isValid());
  return ReadMiddle(reader, atMost);
}

TEST(ReadPictureFile, APictureOfUnknownSizeIsCroppedToItsMiddle) {
  EXPECT_EQ(MiddleOfStream(kGif.size(), {2, 3}).size(), QSize(2, 3));
  EXPECT_EQ(MiddleOfStream(kGif.size(), {2, 3}).pixelColor(0, 0), QColor(Qt::red));
  EXPECT_EQ(MiddleOfStream(kGif.size(), {100, 3}).size(), QSize(6, 3));
  EXPECT_EQ(MiddleOfStream(kGif.size(), {100, 100}).size(), QSize(6, 4));
}

TEST(ReadPictureFile, AStreamWithoutAPictureHasNoMiddle) {
  for (const qsizetype length : {0, 3, 12}) EXPECT_TRUE(MiddleOfStream(length, {2, 3}).isNull()) << length;
}

TEST(ReadPictureFile, TheMiddleIsThatOfThePicture) {
  const fakes::TemporaryFolder folder;
  QImage picture(9, 7, QImage::Format_RGB32);
  picture.fill(Qt::blue);
  picture.setPixelColor(4, 3, Qt::red);
  for (const char* name : {"a.png", "a.bmp", "a.ppm"}) {
    const auto file = folder.Path() / name;
    ASSERT_TRUE(picture.save(QString::fromStdString(file.string())));
    const QImage middle = ReadMiddleOfPictureFile(file, {3, 3});
    EXPECT_EQ(middle.size(), QSize(3, 3)) << name;
    EXPECT_EQ(middle.pixelColor(1, 1), QColor(Qt::red)) << name;
    EXPECT_EQ(ReadMiddleOfPictureFile(file, {100, 100}).size(), QSize(9, 7)) << name;
    EXPECT_EQ(ReadPictureFile(file).size(), QSize(9, 7)) << name;
  }
}

TEST(ReadPictureFile, AFileThatIsNotAPictureGivesNull) {
  const fakes::TemporaryFolder folder;
  for (const auto& file : {folder.Path(), folder.Path() / "missing", folder.Write("a.png", "no picture")}) {
    EXPECT_TRUE(ReadPictureFile(file).isNull()) << file;
    EXPECT_TRUE(ReadMiddleOfPictureFile(file, {3, 3}).isNull()) << file;
  }
}

}  // namespace
}  // namespace vantorium::ui
