#include "env/FileDescriptor.h"
#include "image/jpeg/ScanData.h"
#include "tests/fakes/TemporaryFolder.h"

#include <algorithm>
#include <optional>

#include <fcntl.h>
#include <gtest/gtest.h>

namespace vantorium::image::jpeg {
namespace {

class ScanDataTest : public ::testing::Test {
 protected:
  ScanData Open(const std::string& bytes, off_t place = 0) {
    descriptor.emplace(::open(folder.Write("data", bytes).c_str(), O_RDONLY));
    ScanData data(descriptor->Get(), place);
    data.BeginSegment();
    return data;
  }

  fakes::TemporaryFolder folder;
  std::optional<env::FileDescriptor> descriptor;
};

std::string Known(const ScanData& data) {
  return {data.Begin(), data.End()};
}

TEST_F(ScanDataTest, StuffedZerosAreRemovedAndTheSegmentEndsAtItsMarker) {
  const ScanData data = Open(std::string("xxab\xFF\0c\xFF\0\xFF\xD9more", 15), 2);
  EXPECT_TRUE(data.IsWhole());
  EXPECT_EQ(data.Marker(), 0xD9);
  EXPECT_EQ(Known(data),
            "ab\xFF"
            "c\xFF");
}

TEST_F(ScanDataTest, ZerosFollowASegment) {
  const ScanData data = Open("abc\xFF\xD9");
  EXPECT_TRUE(std::all_of(data.End(), data.End() + ScanData::kRoom, [](auto byte) { return byte == 0; }));
}

TEST_F(ScanDataTest, SegmentsFollowOneAnother) {
  ScanData data = Open(
      "ab\xFF\xD0"
      "cd\xFF\xD1\xFF\xD9");
  EXPECT_EQ(Known(data), "ab");
  EXPECT_EQ(data.Marker(), 0xD0);
  data.BeginSegment();
  EXPECT_EQ(Known(data), "cd");
  EXPECT_EQ(data.Marker(), 0xD1);
  data.BeginSegment();
  EXPECT_EQ(Known(data), "");
  EXPECT_EQ(data.Marker(), 0xD9);
}

TEST_F(ScanDataTest, TheEndOfTheFileIsNotAMarker) {
  for (const std::string& bytes : {std::string("abc"), std::string("abc\xFF"), std::string()}) {
    const ScanData data = Open(bytes);
    EXPECT_TRUE(data.IsWhole());
    EXPECT_EQ(data.Marker(), 0);
    EXPECT_EQ(Known(data), bytes.substr(0, 3));
  }
}

// There are bytes FF at the ends of the pieces in which the file is read.
TEST_F(ScanDataTest, LongDataAreReadInPiecesWithoutLoss) {
  std::string stuffed;
  std::string plain;
  for (int i = 0; plain.size() < 300000; ++i) {
    const std::string some(static_cast<std::size_t>(i % 7), static_cast<char>(i % 255));
    stuffed += some + std::string("\xFF\0", 2);
    plain += some + "\xFF";
  }
  ScanData data = Open(stuffed + "\xFF\xD9");
  std::string got;
  while (!data.IsWhole()) {
    const auto* unread = data.End() - 100;
    got.append(data.Begin(), unread);
    data.More(unread);
  }
  EXPECT_EQ(got + Known(data), plain);
  EXPECT_EQ(data.Marker(), 0xD9);
}

}  // namespace
}  // namespace vantorium::image::jpeg
