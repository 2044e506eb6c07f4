#include "image/ProfileChunks.h"

#include <vector>

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

std::string Chunk(int number, int count, std::string_view bytes) {
  return std::string("ICC_PROFILE\0", 12) + static_cast<char>(number) + static_cast<char>(count) + std::string(bytes);
}

std::string ProfileOf(const std::vector<std::string>& segments) {
  ProfileChunks chunks;
  for (const std::string& segment : segments) chunks.Take(segment);
  return chunks.Profile();
}

TEST(ProfileChunks, ChunksAreJoinedByTheirNumbersInAnyOrder) {
  EXPECT_EQ(ProfileOf({Chunk(1, 1, "all")}), "all");
  EXPECT_EQ(ProfileOf({Chunk(3, 3, "c"), Chunk(1, 3, "a"), Chunk(2, 3, "b")}), "abc");
}

TEST(ProfileChunks, OtherSegmentsBetweenThemAreIgnored) {
  EXPECT_EQ(ProfileOf({"MPF", Chunk(1, 2, "a"), "", "ICC_PROFILE", Chunk(2, 2, "b")}), "ab");
}

TEST(ProfileChunks, TheMaximumNumberOfChunksIsJoined) {
  std::vector<std::string> segments;
  for (int number = 1; number <= 255; ++number) segments.push_back(Chunk(number, 255, "x"));
  EXPECT_EQ(ProfileOf(segments), std::string(255, 'x'));
}

TEST(ProfileChunks, ThereIsNoProfileIfAnyChunkIsMissingRepeatedEmptyOrContradictory) {
  EXPECT_EQ(ProfileOf({}), "");
  EXPECT_EQ(ProfileOf({Chunk(1, 2, "a")}), "") << "missing";
  EXPECT_EQ(ProfileOf({Chunk(1, 2, "a"), Chunk(1, 2, "a")}), "") << "twice";
  EXPECT_EQ(ProfileOf({Chunk(1, 1, "a"), Chunk(1, 1, "a")}), "") << "twice the only one";
  EXPECT_EQ(ProfileOf({Chunk(1, 2, "a"), Chunk(2, 3, "b")}), "") << "another count";
  EXPECT_EQ(ProfileOf({Chunk(0, 1, "a")}), "") << "number 0";
  EXPECT_EQ(ProfileOf({Chunk(2, 1, "a")}), "") << "number above the count";
  EXPECT_EQ(ProfileOf({Chunk(1, 0, "a")}), "") << "count 0";
  EXPECT_EQ(ProfileOf({Chunk(1, 1, "a"), Chunk(1, 1, "")}), "") << "empty";
  EXPECT_EQ(ProfileOf({Chunk(1, 1, "").substr(0, 13)}), "") << "cut off";
}

}  // namespace
}  // namespace vantorium::image
