#include "tests/ui/FormDriver.h"
#include "ui/main/frmSysTray.h"

#include <QSignalSpy>
#include <QTimer>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

/// The program's tray menu. The platform of these tests has no tray.
class SysTrayForm : public testing::Test {
 protected:
  SysTrayForm() {
    // The menu has no parent, so it is searched among the top-level windows.
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == "mnuPopup") popup = qobject_cast<QMenu*>(widget);
    }
  }

  QAction& Entry(const char* name) {
    auto* action = popup->findChild<QAction*>(name);
    if (action == nullptr) throw std::runtime_error(std::string("no entry ") + name);
    return *action;
  }

  void Activate(QSystemTrayIcon::ActivationReason reason) {
    emit tray.findChild<QSystemTrayIcon*>("trayIcon")->activated(reason);
  }

  /// The signals sent since the last call, grouped by kind.
  std::string Sent() {
    std::string sent;
    for (const QList<QVariant>& click : clicks) {
      sent += "click " + click[0].toString().toStdString() + " " + click[1].toString().toStdString() + "; ";
    }
    for (const QList<QVariant>& button : buttons) {
      sent += "button " + std::to_string(button[0].value<Qt::MouseButton>()) + "; ";
    }
    for (qsizetype n = 0; n < doubleClicks.count(); ++n) sent += "double; ";
    clicks.clear();
    buttons.clear();
    doubleClicks.clear();
    return sent;
  }

  frmSysTray tray{VantoriumSysTrayMenu(), QIcon()};
  QSignalSpy clicks{&tray, &frmSysTray::MenuClick};
  QSignalSpy buttons{&tray, &frmSysTray::SysTrayMouseDown};
  QSignalSpy doubleClicks{&tray, &frmSysTray::SysTrayDoubleClick};
  QMenu* popup = nullptr;
};

TEST_F(SysTrayForm, WithoutATrayThereIsNoIconAndNoFailure) {
  ASSERT_FALSE(QSystemTrayIcon::isSystemTrayAvailable());
  EXPECT_FALSE(tray.findChild<QSystemTrayIcon*>("trayIcon")->isVisible());
}

TEST_F(SysTrayForm, TheIconCanBeReplaced) {
  const auto* icon = tray.findChild<QSystemTrayIcon*>("trayIcon");
  ASSERT_TRUE(icon->icon().isNull());
  QPixmap pixmap(16, 16);
  pixmap.fill(Qt::red);
  tray.SetIcon(pixmap);
  EXPECT_EQ(icon->icon().pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));
}

TEST_F(SysTrayForm, ShowsTheMenuWithTheDefaultInBold) {
  ASSERT_NE(popup, nullptr);
  ASSERT_EQ(popup->actions().size(), 6);
  EXPECT_EQ(Entry("mnuSysTray0").text(), "&Vantorium");
  EXPECT_TRUE(Entry("mnuSysTray1").isSeparator());
  EXPECT_EQ(Entry("mnuSysTray5").text(), "&Close");
  EXPECT_EQ(popup->defaultAction(), &Entry("mnuSysTray0"));
  EXPECT_EQ(tray.findChild<QSystemTrayIcon*>("trayIcon")->toolTip(), "Vantorium 3.0");
}

TEST_F(SysTrayForm, AnEntryReportsItsIndexAndKey) {
  tray.ShowMenu();
  ASSERT_TRUE(popup->isVisible());
  QTest::keyClick(popup, Qt::Key_C);
  EXPECT_FALSE(popup->isVisible());
  EXPECT_EQ(Sent(), "click 5 close; ");
  Entry("mnuSysTray2").trigger();
  EXPECT_EQ(Sent(), "click 2 help; ");
}

TEST_F(SysTrayForm, TheMenuIsOpenOnlyOnce) {
  tray.ShowMenu();
  const QPoint at = popup->pos();
  tray.ShowMenu();
  EXPECT_EQ(popup->pos(), at);
  QTest::keyClick(popup, Qt::Key_Escape);
  EXPECT_FALSE(popup->isVisible());
  EXPECT_EQ(Sent(), "");
}

TEST_F(SysTrayForm, TheMouseOverTheIconIsReported) {
  Activate(QSystemTrayIcon::Trigger);
  EXPECT_EQ(Sent(), "button 1; ");
  Activate(QSystemTrayIcon::Context);
  EXPECT_EQ(Sent(), "button 2; ");
  Activate(QSystemTrayIcon::DoubleClick);
  EXPECT_EQ(Sent(), "click 0 vantorium; double; ");
  Activate(QSystemTrayIcon::MiddleClick);
  Activate(QSystemTrayIcon::Unknown);
  EXPECT_EQ(Sent(), "");
}

TEST_F(SysTrayForm, TwoTriggersAreADoubleClickAndActOnce) {
  Activate(QSystemTrayIcon::Trigger);
  Activate(QSystemTrayIcon::Trigger);
  EXPECT_EQ(Sent(), "click 0 vantorium; button 1; double; ");
  Activate(QSystemTrayIcon::DoubleClick);
  EXPECT_EQ(Sent(), "") << "both triggers were one double click";
  Activate(QSystemTrayIcon::Trigger);
  EXPECT_EQ(Sent(), "button 1; ") << "the first click of the next";
}

TEST_F(SysTrayForm, AReportedDoubleClickIsNotAFirstTrigger) {
  Activate(QSystemTrayIcon::Trigger);
  Activate(QSystemTrayIcon::DoubleClick);
  Activate(QSystemTrayIcon::Trigger);
  EXPECT_EQ(Sent(), "click 0 vantorium; button 1; button 1; double; ");
}

TEST_F(SysTrayForm, TwoTriggersFarApartAreTwoClicks) {
  const int interval = QApplication::doubleClickInterval();
  QApplication::setDoubleClickInterval(0);
  Activate(QSystemTrayIcon::Trigger);
  Activate(QSystemTrayIcon::Trigger);
  QApplication::setDoubleClickInterval(interval);
  EXPECT_EQ(Sent(), "button 1; button 1; ");
}

TEST(SysTray, ATrayThatStartsAfterTheProgramGetsTheIcon) {
  bool isThere = false;
  int asked = 0;
  const frmSysTray tray(VantoriumSysTrayMenu(), QIcon(":/vantorium/vantorium.svg"), [&] { return ++asked, isThere; });
  const auto* icon = tray.findChild<QSystemTrayIcon*>("trayIcon");
  auto* watch = tray.findChild<QTimer*>("trayWatch");
  watch->setInterval(1);
  ASSERT_TRUE(QTest::qWaitFor([&] { return asked > 2; }));
  EXPECT_FALSE(icon->isVisible());
  isThere = true;
  EXPECT_TRUE(QTest::qWaitFor([&] { return icon->isVisible(); }));
  EXPECT_FALSE(watch->isActive());
}

TEST(SysTray, AnExistingTrayIsNotWatchedFor) {
  const frmSysTray tray(VantoriumSysTrayMenu(), QIcon(":/vantorium/vantorium.svg"), [] { return true; });
  EXPECT_TRUE(tray.findChild<QSystemTrayIcon*>("trayIcon")->isVisible());
  EXPECT_EQ(tray.findChild<QTimer*>("trayWatch"), nullptr);
}

TEST_F(SysTrayForm, WithoutADefaultADoubleClickChoosesNothing) {
  tray.RemoveMenuItem(0);
  EXPECT_EQ(popup->defaultAction(), nullptr);
  EXPECT_FALSE(Entry("mnuSysTray0").isVisible());
  Activate(QSystemTrayIcon::DoubleClick);
  EXPECT_EQ(Sent(), "double; ");
}

TEST_F(SysTrayForm, WhileItIsDisabledNothingIsReported) {
  tray.SetEnabled(false);
  EXPECT_FALSE(Entry("mnuSysTray5").isEnabled());
  Entry("mnuSysTray5").trigger();
  Activate(QSystemTrayIcon::Context);
  Activate(QSystemTrayIcon::DoubleClick);
  EXPECT_EQ(Sent(), "");
  tray.SetEnabled(true);
  Entry("mnuSysTray5").trigger();
  EXPECT_EQ(Sent(), "click 5 close; ");
}

TEST_F(SysTrayForm, EntriesCanBeAddedAndDisabled) {
  EXPECT_EQ(tray.AddMenuItem("&More", "more", true), 6);
  EXPECT_EQ(popup->defaultAction(), &Entry("mnuSysTray6"));
  tray.EnableMenuItem(6, false);
  EXPECT_FALSE(Entry("mnuSysTray6").isEnabled());
  tray.EnableMenuItem(7, false);
  Activate(QSystemTrayIcon::DoubleClick);
  EXPECT_EQ(Sent(), "double; ") << "the default is disabled";
  tray.SetDefaultMenuIndex(3);
  EXPECT_EQ(popup->defaultAction(), &Entry("mnuSysTray3"));
  tray.SetToolTip(std::string(70, 'x'));
  EXPECT_EQ(tray.findChild<QSystemTrayIcon*>("trayIcon")->toolTip().size(), 63);
}

}  // namespace
}  // namespace vantorium::ui
