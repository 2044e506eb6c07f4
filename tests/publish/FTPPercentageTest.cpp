#include "env/RuntimeFailure.h"
#include "publish/FTPPercentage.h"
#include "tests/fakes/FailureOf.h"

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

TEST(FTPPercentage, IsRoundedWithHalvesToEven) {
  EXPECT_EQ(FTPPercentage(0, 1), 0);
  EXPECT_EQ(FTPPercentage(4096, 8192), 50);
  EXPECT_EQ(FTPPercentage(1, 200), 0);  // 0.5
  EXPECT_EQ(FTPPercentage(3, 200), 2);  // 1.5
  EXPECT_EQ(FTPPercentage(5, 200), 2);  // 2.5
  EXPECT_EQ(FTPPercentage(2, 3), 67);
  EXPECT_EQ(FTPPercentage(3, 3), 100);
}

TEST(FTPPercentage, IsNotComputedIfTheProductOverflows) {
  EXPECT_EQ(FTPPercentage(21474836, 42949672), 50);
  EXPECT_EQ(FTPPercentage(21474837, 42949672), std::nullopt);
  EXPECT_EQ(FTPPercentage(0x7FFFFFFF, 0x7FFFFFFF), std::nullopt);
  EXPECT_EQ(FTPPercentage(0, 0x7FFFFFFF), 0);
}

TEST(FTPPercentage, OfAnEmptyFileIsADivisionByZero) {
  EXPECT_EQ(fakes::FailureOf([] { std::ignore = FTPPercentage(0, 0); }), env::FailureKind::DivisionByZero);
}

}  // namespace
}  // namespace vantorium::publish
