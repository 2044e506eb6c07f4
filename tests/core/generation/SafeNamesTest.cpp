#include "core/generation/SafeNames.h"

#include <gtest/gtest.h>

namespace vantorium::generation {
namespace {

using namespace std::string_view_literals;

TEST(SafeNames, AnOrdinaryNameIsPlain) {
  for (const auto name : {"a.jpg"sv, "..jpg"sv, "a..b"sv, "...htm"sv, "10:30.jpg"sv, ".hidden"sv, "ä ö.jpg"sv, "C"sv}) {
    EXPECT_TRUE(IsPlainFileName(name)) << name;
  }
}

TEST(SafeNames, ANameWithASeparatorOrADriveOrOnlyDotsIsNotPlain) {
  for (const auto name :
       {""sv, "."sv, ".."sv, "a/b"sv, "a\\b"sv, "/a"sv, "\\a"sv, "C:a"sv, "z:"sv, "..\\a"sv, "a\0b"sv}) {
    EXPECT_FALSE(IsPlainFileName(name)) << name;
  }
}

TEST(SafeNames, ASubfolderDoesNotLeaveTheGallery) {
  for (const auto path : {"Images/"sv, "Images\\Big"sv, "/"sv, ""sv, "a..b/c"sv, "./a"sv}) {
    EXPECT_FALSE(LeavesFolder(path)) << path;
  }
}

TEST(SafeNames, DotsAndDrivesLeaveTheGallery) {
  for (const auto path : {".."sv, "../"sv, "a/../../b"sv, "a\\..\\b"sv, "C:\\x"sv, "c:x"sv, "a\0"sv}) {
    EXPECT_TRUE(LeavesFolder(path)) << path;
  }
}

}  // namespace
}  // namespace vantorium::generation
