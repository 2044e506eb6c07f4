#include "core/file/ProjectFileNames.h"

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;

TEST(ProjectFileNames, AnIndexBeyondTheListHasNoWord) {
  EXPECT_EQ(WordOf(kStartOverWords, 2), "stop");
  EXPECT_EQ(WordOf(kStartOverWords, 3), "");
  EXPECT_EQ(WordOf(kStartOverWords, -1), "");
  EXPECT_EQ(WordOf(kLinkPlaceWords, 0), "");
}

TEST(ProjectFileNames, AWordIsFoundInAnyCase) {
  EXPECT_EQ(IndexOfWord(kTableAlignmentWords, "fitToPage"), 0);
  EXPECT_EQ(IndexOfWord(kTableAlignmentWords, "FITTOPAGE"), 0);
  EXPECT_EQ(IndexOfWord(kTableAlignmentWords, "Right"), 3);
}

TEST(ProjectFileNames, AWordThatIsNotInTheListHasNoIndex) {
  for (const char* word : {"", "middle", "right ", "righ"})
    EXPECT_EQ(IndexOfWord(kTableAlignmentWords, word), std::nullopt);
  EXPECT_EQ(IndexOfWord(kLinkPlaceWords, ""), std::nullopt);
}
