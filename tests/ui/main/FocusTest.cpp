// Which control gets the focus when the focused control is hidden.
#include "tests/ui/MainWindowHarness.h"

#include <QTabBar>

namespace vantorium::ui {
namespace {

using fakes::Find;
using fakes::MainWindowHarness;

/// Buttons that delete something when pressed.
constexpr const char* kDestroys[] = {"btnImagesShuffle", "btnImagesRemove", "btnImagesRemoveAll"};

/// The first visible control of the page that accepts the focus by Tab.
QWidget* FirstControl(QWidget& page) {
  QWidget* control = &page;
  do {
    control = control->nextInFocusChain();
  } while (!(control->focusPolicy() & Qt::TabFocus) || !control->isVisible() || !page.isAncestorOf(control));
  return control;
}

TEST(Focus, HidingAPageNeverMovesItToAButtonThatDeletes) {
  MainWindowHarness harness;
  harness.Start();
  harness.AddPhotograph("a.jpg");
  auto& pages = Find<QTabWidget>(*harness.window, "tsMain");
  for (int from = 0; from < pages.count(); ++from) {
    for (int to = 0; to < pages.count(); ++to) {
      pages.setCurrentIndex(from);
      FirstControl(*pages.currentWidget())->setFocus();
      QTest::mouseClick(pages.tabBar(), Qt::LeftButton, {}, pages.tabBar()->tabRect(to).center());
      ASSERT_EQ(pages.currentIndex(), to);
      const QWidget* focus = harness.window->focusWidget();
      for (const char* button : kDestroys)
        EXPECT_NE(focus, &Find<QWidget>(*harness.window, button)) << from << "-" << to;
    }
  }
}

}  // namespace
}  // namespace vantorium::ui
