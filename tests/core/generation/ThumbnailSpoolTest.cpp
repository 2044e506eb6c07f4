#include "core/generation/ThumbnailSpool.h"
#include "tests/fakes/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantorium::generation {
namespace {

TEST(ThumbnailSpool, ReturnsWhatWasPutInAnyOrder) {
  const fakes::TemporaryFolder folder;
  ThumbnailSpool spool(folder.Path());
  const auto first = spool.Put("first");
  const auto empty = spool.Put("");
  const auto large = spool.Put(std::string(100'000, 'x'));
  ASSERT_TRUE(first && empty && large);
  EXPECT_EQ(spool.Get(*large), std::string(100'000, 'x'));
  EXPECT_EQ(spool.Get(*first), "first");
  EXPECT_EQ(spool.Get(*empty), "");
}

TEST(ThumbnailSpool, LeavesNothingInItsFolder) {
  const fakes::TemporaryFolder folder;
  ThumbnailSpool spool(folder.Path());
  ASSERT_TRUE(spool.Put("bytes"));
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST(ThumbnailSpool, KeepsNothingWithoutAFolder) {
  ThumbnailSpool spool("/nowhere/at/all");
  EXPECT_FALSE(spool.Put("bytes"));
}

TEST(ThumbnailSpool, APlaceBeyondTheEndIsEmpty) {
  const fakes::TemporaryFolder folder;
  const ThumbnailSpool spool(folder.Path());
  EXPECT_FALSE(spool.Get({.offset = 100, .size = 5}));
}

}  // namespace
}  // namespace vantorium::generation
