#include "tests/fakes/PhotographMaker.h"
#include "tests/ui/FileBrowserHarness.h"
#include "ui/files/frmPreview.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <fstream>

namespace vantorium::ui {
namespace {

using fakes::DriveModal;
using fakes::Find;

class FullScreenPreview : public testing::Test {
 protected:
  /// Makes a blue picture with one red pixel and previews it.
  void Draw(QSize size, QPoint red) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    picture.setPixelColor(red, Qt::red);
    picture.save(harness.Native("picture.png"));
    preview.SetPicture("picture", "C:\\picture.png");
  }

  QImage Drawn() {
    preview.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&preview));
    return preview.grab().toImage();
  }

  QSize Pixels() { return (QSizeF(preview.size()) * preview.devicePixelRatioF()).toSize(); }

  void ShowsUntil(const std::function<void(QWidget&)>& close) {
    DriveModal([this] { preview.exec(); },
               [&](QWidget& window) {
                 close(window);
                 EXPECT_FALSE(window.isVisible());
               });
  }

  fakes::FileBrowserHarness harness;
  frmPreview preview{harness.paths};
};

TEST_F(FullScreenPreview, CoversTheScreen) {
  preview.show();
  EXPECT_EQ(preview.geometry(), preview.screen()->geometry());
  EXPECT_TRUE(preview.isFullScreen());
}

TEST_F(FullScreenPreview, ItsTitleHasTheDescription) {
  preview.SetPicture("a.jpg (40x30, 1KB)", "C:\\photos\\a.jpg");
  EXPECT_EQ(preview.windowTitle(), "Full Screen Preview: a.jpg (40x30, 1KB)");
  EXPECT_EQ(Find<QLabel>(preview, "pic").pixmap().size(), QSize(40, 30));
  EXPECT_FALSE(Find<QLabel>(preview, "pic").isVisible());
}

TEST_F(FullScreenPreview, ASmallPictureIsCenteredAtItsNaturalSize) {
  Draw({40, 30}, {0, 0});
  const QImage drawn = Drawn();
  const QPoint corner(Pixels().width() / 2 - 20, Pixels().height() / 2 - 15);
  EXPECT_EQ(drawn.pixelColor(corner), QColor(Qt::red));
  EXPECT_EQ(drawn.pixelColor(corner + QPoint(1, 0)), QColor(Qt::blue));
  EXPECT_EQ(drawn.pixelColor(corner + QPoint(39, 29)), QColor(Qt::blue));
  EXPECT_NE(drawn.pixelColor(corner + QPoint(40, 29)), QColor(Qt::blue));
  EXPECT_NE(drawn.pixelColor(corner - QPoint(1, 0)), QColor(Qt::blue));
}

TEST_F(FullScreenPreview, AnOversizedPictureIsCroppedAtAllSides) {
  const QSize screen = Pixels();
  Draw(screen + QSize(200, 100), {100, 50});
  const QImage drawn = Drawn();
  EXPECT_EQ(drawn.pixelColor(0, 0), QColor(Qt::red));
  EXPECT_EQ(drawn.pixelColor(1, 1), QColor(Qt::blue));
  EXPECT_EQ(drawn.pixelColor(screen.width() - 1, screen.height() - 1), QColor(Qt::blue));
}

TEST_F(FullScreenPreview, APictureWiderThanTheScreenIsCroppedAtTwoSides) {
  const QSize screen = Pixels();
  Draw({screen.width() + 200, 20}, {100, 0});
  const QImage drawn = Drawn();
  EXPECT_EQ(drawn.pixelColor(0, screen.height() / 2 - 10), QColor(Qt::red));
  EXPECT_NE(drawn.pixelColor(0, screen.height() / 2 - 11), QColor(Qt::blue));
}

TEST_F(FullScreenPreview, APhotographIsTurnedOnRequestAndItsMiddleIsShown) {
  const auto& pic = Find<QLabel>(preview, "pic");
  const auto write = [this](int width, int height) {
    const std::string jpeg = fakes::WithOrientation(fakes::MakeJpeg({.width = width, .height = height}), 6);
    std::ofstream(harness.Native("lying.jpg").toStdString(), std::ios::binary) << jpeg;
  };
  write(60, 20);
  preview.SetPicture("lying", "C:\\lying.jpg", {.upright = true});
  EXPECT_EQ(pic.pixmap().size(), QSize(20, 60));
  preview.SetPicture("lying", "C:\\lying.jpg");
  EXPECT_EQ(pic.pixmap().size(), QSize(60, 20));
  write(9000, 16);
  preview.SetPicture("lying", "C:\\lying.jpg", {.upright = true});
  EXPECT_EQ(pic.pixmap().width(), 16);
  EXPECT_LT(pic.pixmap().height(), 9000);
}

TEST_F(FullScreenPreview, APictureThatIsNotAPhotographIsShownAsStored) {
  Draw({40, 30}, {0, 0});
  preview.SetPicture("picture", "C:\\picture.png", {.upright = true, .trueColors = true});
  EXPECT_EQ(Find<QLabel>(preview, "pic").pixmap().size(), QSize(40, 30));
}

TEST_F(FullScreenPreview, APictureThatCannotBeShownLeavesTheScreenEmpty) {
  for (const char* file : {"C:\\photos\\broken.jpg", "C:\\photos\\none.jpg", "C:\\photos", "X:\\a.jpg", ""}) {
    preview.SetPicture("text", file);
    EXPECT_TRUE(Find<QLabel>(preview, "pic").pixmap().isNull()) << file;
    EXPECT_EQ(preview.windowTitle(), "Full Screen Preview: text");
    const QImage drawn = Drawn();
    EXPECT_EQ(drawn.pixelColor(drawn.rect().center()), drawn.pixelColor(0, 0)) << file;
  }
}

TEST_F(FullScreenPreview, TheCloseButtonIsInvisibleAndWorksByItsKeys) {
  preview.show();
  EXPECT_FALSE(preview.rect().intersects(Find<QPushButton>(preview, "btnClose").geometry()));
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    preview.hide();
    ShowsUntil([key](QWidget& window) {
      QWidget* const focus = window.focusWidget();
      QTest::keyClick(focus != nullptr ? focus : &window, key);
    });
  }
}

TEST_F(FullScreenPreview, AClickClosesIt) {
  ShowsUntil([](QWidget& window) { QTest::mouseClick(&window, Qt::LeftButton); });
}

}  // namespace
}  // namespace vantorium::ui
