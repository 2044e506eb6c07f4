#include "tests/ui/ImagesPageHarness.h"
#include "ui/main/ImageListView.h"

#include <QMimeData>
#include <QMouseEvent>
#include <QTimer>

namespace vantorium::ui {
namespace {

using Names = std::vector<std::string>;

class DraggingRows : public testing::Test {
 protected:
  DraggingRows() { harness.AddAll({"a.jpg", "b.jpg", "c.jpg", "d.jpg"}); }

  [[nodiscard]] QPoint MiddleOf(int row) const {
    return harness.list->visualRect(harness.list->model()->index(row, 0)).center();
  }

  void MoveWithButtonDown(QPoint to) const {
    QWidget* viewport = harness.list->viewport();
    QMouseEvent move(QEvent::MouseMove, to, viewport->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(viewport, &move);
  }

  // A drag runs its own event loop, so a timer moves and releases the mouse.
  void Drag(int row, QPoint to) const {
    QWidget* viewport = harness.list->viewport();
    QTimer mouse;
    int step = 0;
    QObject::connect(&mouse, &QTimer::timeout, [&] {
      QWindow* window = harness.page->window()->windowHandle();
      const QPoint at = viewport->mapTo(harness.page->window(), to);
      if (step++ < 2) {
        QTest::mouseMove(window, at);
      } else {
        QTest::mouseRelease(window, Qt::LeftButton, {}, at);
      }
    });
    QTest::mousePress(viewport, Qt::LeftButton, {}, MiddleOf(row));
    mouse.start(20);
    MoveWithButtonDown(MiddleOf(row) + QPoint(0, 3));
    MoveWithButtonDown(MiddleOf(row) + QPoint(40, 12));
    QTest::qWait(150);
  }

  fakes::ImagesPageHarness harness;
};

TEST_F(DraggingRows, ARowIsDroppedOnAnother) {
  Drag(0, MiddleOf(2));
  EXPECT_EQ(harness.Names(), (Names{"b.jpg", "c.jpg", "a.jpg", "d.jpg"}));
  EXPECT_EQ(harness.project.images.Current(), 3U);
  EXPECT_EQ(harness.list->currentIndex().row(), 2);
  EXPECT_TRUE(harness.project.IsModified);
}

TEST_F(DraggingRows, ARowDroppedBelowAllRowsBecomesTheLast) {
  Drag(1, QPoint(20, harness.list->viewport()->height() - 5));
  EXPECT_EQ(harness.Names(), (Names{"a.jpg", "c.jpg", "d.jpg", "b.jpg"}));
}

TEST_F(DraggingRows, AListThatIsKeptSortedRefusesDrops) {
  harness.operations.SetSortingOrder(1);
  Drag(0, MiddleOf(2));
  EXPECT_EQ(harness.Names(), (Names{"a.jpg", "b.jpg", "c.jpg", "d.jpg"}));
  ASSERT_FALSE(harness.boxes.boxes.empty());
  EXPECT_EQ(harness.boxes.boxes.back().title, "Item cannot be moved");
}

TEST_F(DraggingRows, DropsFromElsewhereAreIgnored) {
  QMimeData foreign;
  foreign.setText("a.jpg");
  QDropEvent drop(MiddleOf(2), Qt::MoveAction | Qt::CopyAction, &foreign, Qt::LeftButton, {});
  QApplication::sendEvent(harness.list->viewport(), &drop);
  EXPECT_FALSE(drop.isAccepted());
  EXPECT_EQ(harness.Names(), (Names{"a.jpg", "b.jpg", "c.jpg", "d.jpg"}));
}

}  // namespace
}  // namespace vantorium::ui
