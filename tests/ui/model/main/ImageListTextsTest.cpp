#include "ui/model/main/ImageListTexts.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

TEST(ImageListTexts, TheCountHasItsUnit) {
  EXPECT_EQ(ImageCountText(0), "0 Image(s)");
  EXPECT_EQ(ImageCountText(100000), "100000 Image(s)");
}

TEST(ImageListTexts, ThePageCountFollowsTheImageCount) {
  EXPECT_EQ(PageCountText(26, 2), "26 Images on 2 Pages");
  EXPECT_EQ(PageCountText(0, 0), "0 Images on 0 Pages");
}

TEST(ImageListTexts, TheSizeIsShownInPixelsAndInReadableBytes) {
  EXPECT_EQ(ImageSizeText(800, 600, 1023), "(800x600, 1023 Bytes)");
  EXPECT_EQ(ImageSizeText(1, 2, 2047), "(1x2, 1KB)");
}

}  // namespace
}  // namespace vantorium::ui
