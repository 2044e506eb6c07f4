#include "tests/fakes/SampleFakes.h"
#include "tests/ui/FormDriver.h"
#include "ui/widgets/ColorButton.h"
#include "ui/widgets/UnscaledPicture.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

TEST(UnscaledPicture, HasThePixelSizeOfItsContentsOnItsScreen) {
  UnscaledPicture box;
  box.resize(box.sizeHint());
  const double ratio = box.devicePixelRatioF();
  EXPECT_EQ(box.SizeInPixels(), (image::PictureSize{static_cast<int>(440 * ratio), static_cast<int>(330 * ratio)}));
}

TEST(UnscaledPicture, ShowsAPicturePixelByPixelInItsCorner) {
  UnscaledPicture box;
  box.resize(box.sizeHint());
  box.Show(fakes::PlainPicture(30, 20, 0x0000FF));
  EXPECT_EQ(box.Shown().pixel(29, 19), qRgb(255, 0, 0));
  EXPECT_EQ(qAlpha(box.Shown().pixel(30, 19)), 0);
  EXPECT_EQ(qAlpha(box.Shown().pixel(29, 20)), 0);
  const QImage seen = box.grab().toImage();
  const int frame = static_cast<int>(box.frameWidth() * box.devicePixelRatioF());
  EXPECT_EQ(seen.pixel(frame + 5, frame + 5), qRgb(255, 0, 0));
}

TEST(UnscaledPicture, CanBeCleared) {
  UnscaledPicture box;
  box.Show(fakes::PlainPicture(3, 2, 0x0000FF));
  box.Clear();
  EXPECT_TRUE(box.Shown().isNull());
}

TEST(ColorButton, ShowsAndNamesItsColor) {
  ColorButton button;
  button.resize(button.sizeHint());
  button.SetColor(0x302010);
  EXPECT_EQ(button.GetColor(), 0x302010U);
  EXPECT_EQ(button.accessibleDescription(), "#102030");
  EXPECT_EQ(button.property("color").value<QColor>(), QColor(0x10, 0x20, 0x30));
  const QImage seen = button.grab().toImage();
  EXPECT_EQ(seen.pixel(seen.width() / 2, seen.height() / 2), qRgb(0x10, 0x20, 0x30));
}

}  // namespace
}  // namespace vantorium::ui
