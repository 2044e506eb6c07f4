#include "core/file/ProjectReadResult.h"

#include <string_view>

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;

TEST(ProjectReadResult, OnlyAnInvalidFileHasAReason) {
  EXPECT_EQ(std::string_view(ReasonOf(ReadResult::Complete)), "");
  EXPECT_EQ(std::string_view(ReasonOf(ReadResult::ImageRefused)), "");
  EXPECT_EQ(std::string_view(ReasonOf(ReadResult::NoArrangement)), "ARRANGEMENT?");
}
