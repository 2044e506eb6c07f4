#include "core/ImageFormats.h"

#include <gtest/gtest.h>

namespace vantorium::core {
namespace {

TEST(ImageFormats, TheThreeExtensionsAreSupportedInAnyCase) {
  for (const char* extension : {".jpg", ".jpeg", ".jfif", ".JPG", ".Jpeg", ".jFIF"}) {
    EXPECT_TRUE(IsSupportedImageExtension(extension)) << extension;
  }
}

TEST(ImageFormats, OtherTextsAreNotSupported) {
  for (const char* extension : {"", ".", "jpg", ".jpe", ".jpgx", ".jpg ", " .jpg", ".png", ".b\\c", "a.jpg"}) {
    EXPECT_FALSE(IsSupportedImageExtension(extension)) << extension;
  }
}

TEST(ImageFormats, TheFilterListsAllFormatsTogetherThenEach) {
  EXPECT_EQ(ImageFileFilter(),
            "All supported Formats|*.jpg;*.jpeg;*.jfif|JPEG Images (*.jpg, *.jpeg)|*.jpg;*.jpeg|JFIF Images "
            "(*.jfif)|*.jfif");
}

}  // namespace
}  // namespace vantorium::core
