#include "ui/widgets/PixelFrames.h"
#include "ui/widgets/StretchedPicture.h"

#include <QImage>
#include <QListView>
#include <QTabWidget>
#include <cmath>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

/// Renders a control at (7, 5) of a window at the given scale.
class OnAScreen {
 public:
  OnAScreen(QWidget& control, QSize size, double scale) : control_(control) {
    window_.resize(size + QSize(20, 20));
    control.setParent(&window_);
    control.setStyle(&style_);
    control.setGeometry({{7, 5}, size});
    control.show();
    window_.show();
    picture_ = QImage((QSizeF(window_.size()) * scale).toSize(), QImage::Format_RGB32);
    picture_.setDevicePixelRatio(scale);
    window_.render(&picture_);
    scale_ = scale;
  }
  ~OnAScreen() { control_.setParent(nullptr); }

  /// The numbers of pixels of that color from the middle of the control to its left, right, top and bottom.
  [[nodiscard]] std::vector<int> LinesOf(QColor color) const {
    const QRectF place(QPointF(7, 5) * scale_, QSizeF(control_.size()) * scale_);
    const QPoint middle = place.center().toPoint();
    std::vector<int> lines;
    for (const QPoint step : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)}) {
      int count = 0;
      for (QPoint at = middle; picture_.rect().contains(at); at += step) count += picture_.pixelColor(at) == color;
      lines.push_back(count);
    }
    return lines;
  }

 private:
  QWidget& control_;
  PixelFrames style_;
  QWidget window_;
  QImage picture_;
  double scale_ = 1;
};

/// The color of a frame's lines.
QColor LineColor() {
  QFrame frame;
  frame.setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  frame.resize(50, 50);
  return frame.grab().toImage().pixelColor(25, 49);
}

TEST(PixelFrames, AListBoxHasItsFourLinesAtEveryScaleAndSize) {
  for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
    for (const int height : {60, 61, 62, 63}) {
      QListView list;
      const OnAScreen screen(list, {height + 40, height}, scale);
      for (const int line : screen.LinesOf(LineColor())) EXPECT_GE(line, 1) << scale << " " << height;
    }
  }
}

/// The color of the line around the page of a tab.
QColor TabLineColor() {
  QTabWidget tabs;
  tabs.addTab(new QWidget, "a");
  tabs.resize(100, 100);
  tabs.show();
  return tabs.grab().toImage().pixelColor(0, 60);
}

TEST(PixelFrames, ThePageOfATabHasItsLinesAtEveryScaleAndSize) {
  for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
    for (const int height : {100, 101, 102, 103}) {
      QTabWidget tabs;
      tabs.addTab(new QWidget, "a");
      const OnAScreen screen(tabs, {height + 40, height}, scale);
      for (const int line : screen.LinesOf(TabLineColor())) EXPECT_GE(line, 1) << scale << " " << height;
    }
  }
}

TEST(PixelFrames, APreviewHasItsFourLinesAroundAPictureThatFillsIt) {
  QImage red(8, 6, QImage::Format_RGB32);
  red.fill(Qt::red);
  for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
    for (const int height : {60, 61, 62, 63}) {
      StretchedPicture box;
      box.Show(red);
      const OnAScreen screen(box, {height + 40, height}, scale);
      for (const int line : screen.LinesOf(LineColor())) EXPECT_GE(line, 1) << scale << " " << height;
      const std::vector<int> inside = screen.LinesOf(Qt::red);
      EXPECT_GE(inside[0], std::floor((height + 40) / 2.0 * scale - 2 * scale) - 1) << scale << " " << height;
      EXPECT_GE(inside[3], std::floor(height / 2.0 * scale - 2 * scale) - 1) << scale << " " << height;
    }
  }
}

}  // namespace
}  // namespace vantorium::ui
