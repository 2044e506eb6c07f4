#include "image/PhotographNotes.h"
#include "tests/fakes/PhotographMaker.h"
#include "tests/fakes/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

using fakes::ExifOf;
using fakes::JpegSegment;

constexpr int kAPP1 = 0xE1;
constexpr Corrections kAll = {.upright = true, .trueColors = true};

class PhotographNotesTest : public ::testing::Test {
 protected:
  [[nodiscard]] PhotographNotes Read(const std::string& bytes, Corrections corrections = kAll) const {
    return ReadPhotographNotes(folder.Write("a.jpg", bytes), corrections);
  }
  [[nodiscard]] int OrientationWith(const std::string& segments) const {
    return static_cast<int>(Read(fakes::WithSegments(jpeg, segments)).orientation);
  }

  fakes::TemporaryFolder folder;
  std::string jpeg = fakes::MakeJpeg({});
};

TEST_F(PhotographNotesTest, OnlyRequestedNotesAreRead) {
  const std::string profile = fakes::ProfileOf(fakes::TestProfile::AdobeRGB);
  const std::string photograph = fakes::WithOrientation(fakes::WithProfile(jpeg, profile), 6);
  const auto all = Read(photograph);
  EXPECT_EQ(all.orientation, Orientation::TurnRight);
  EXPECT_TRUE(all.profile == profile);
  EXPECT_EQ(all.channels, 3);
  EXPECT_TRUE(Read(photograph, {.upright = true}).profile.empty());
  EXPECT_EQ(Read(photograph, {.trueColors = true}).orientation, Orientation::AsStored);
  EXPECT_EQ(Read(photograph, {}).orientation, Orientation::AsStored);
}

TEST_F(PhotographNotesTest, AFileWithoutNotesHasTheDefaults) {
  const auto notes = Read(jpeg);
  EXPECT_EQ(notes.orientation, Orientation::AsStored);
  EXPECT_TRUE(notes.profile.empty());
}

TEST_F(PhotographNotesTest, TheFirstExifSegmentWithAnOrientationIsUsed) {
  const std::string other = JpegSegment(kAPP1, "http://ns.adobe.com/xap/1.0/");
  const std::string garbage = JpegSegment(kAPP1, ExifOf(6).substr(0, 20));
  const std::string six = JpegSegment(kAPP1, ExifOf(6));
  const std::string eight = JpegSegment(kAPP1, ExifOf(8, true));
  EXPECT_EQ(OrientationWith(other + six), 6);
  EXPECT_EQ(OrientationWith(six + eight), 6);
  EXPECT_EQ(OrientationWith(eight + six), 8);
  EXPECT_EQ(OrientationWith(garbage + six), 6);
  EXPECT_EQ(OrientationWith(JpegSegment(kAPP1, ExifOf(0)) + eight), 8);
  EXPECT_EQ(OrientationWith(other + garbage), 1);
}

TEST_F(PhotographNotesTest, BytesThatBelongToNoSegmentAreSkipped) {
  const std::string six = JpegSegment(kAPP1, ExifOf(6));
  EXPECT_EQ(OrientationWith("stray bytes" + six), 6);
  EXPECT_EQ(OrientationWith("\xFF\xFF\xFF" + six), 6);
  EXPECT_EQ(OrientationWith("\xFF\x01" + six), 6) << "a marker without a segment";
  EXPECT_EQ(OrientationWith(std::string("\xFF\xEE\0\0", 4) + six), 6) << "a length of 0";
  EXPECT_EQ(OrientationWith(std::string("\xFF\0", 2) + six), 6) << "a stuffed zero";
}

TEST_F(PhotographNotesTest, NotesAfterThePictureAreIgnored) {
  EXPECT_EQ(Read(jpeg + JpegSegment(kAPP1, ExifOf(6))).orientation, Orientation::AsStored);
  EXPECT_EQ(OrientationWith("\xFF\xD9" + JpegSegment(kAPP1, ExifOf(6))), 1) << "after the end of another picture";
}

TEST_F(PhotographNotesTest, AFileThatEndsInTheMiddleOfANoteHasNoNotes) {
  const std::string photograph = fakes::WithOrientation(fakes::WithProfile(jpeg, std::string(500, 'p')), 6);
  const std::size_t exifEnd = 2 + JpegSegment(kAPP1, ExifOf(6)).size();
  for (std::size_t size = 0; size < exifEnd + 200; ++size) {
    const auto notes = Read(photograph.substr(0, size));
    EXPECT_EQ(notes.orientation == Orientation::TurnRight, size >= exifEnd) << size;
    EXPECT_TRUE(notes.profile.empty()) << size;
  }
}

TEST_F(PhotographNotesTest, AFileThatIsNotAJpegHasNoNotes) {
  const std::string six = JpegSegment(kAPP1, ExifOf(6));
  for (const std::string& bytes : {std::string(), std::string("\xFF"), six, "text" + jpeg, std::string(500, '\xFF')}) {
    EXPECT_EQ(Read(bytes).orientation, Orientation::AsStored);
  }
  EXPECT_EQ(ReadPhotographNotes(folder.Path() / "missing.jpg", kAll).orientation, Orientation::AsStored);
  EXPECT_EQ(ReadPhotographNotes(folder.Path(), kAll).orientation, Orientation::AsStored);
}

}  // namespace
}  // namespace vantorium::image
