#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmAbout.h"

#include <QDesktopServices>
#include <QLabel>
#include <QUrl>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;

/// Records the addresses instead of opening them in the desktop's browser.
class Addresses : public QObject {
  Q_OBJECT

 public:
  Addresses() { QDesktopServices::setUrlHandler("https", this, "Take"); }
  ~Addresses() override { QDesktopServices::unsetUrlHandler("https"); }

  QList<QUrl> opened;

 public slots:
  void Take(const QUrl& address) { opened += address; }
};

void Drive(const std::function<void(QWidget&)>& drive) {
  DriveModal([] { frmAbout({3, 0, 17}).exec(); }, drive);
}

TEST(AboutForm, ShowsTheVersion) {
  Drive([](QWidget& form) {
    EXPECT_EQ(form.windowTitle(), "About Vantorium");
    EXPECT_EQ(Find<QLabel>(form, "lblVersion").text(), "Version 3.0 (Build 17)");
    EXPECT_FALSE(Find<QLabel>(form, "picAbout").pixmap().isNull());
  });
}

TEST(AboutForm, OKAndEscapeCloseIt) {
  Drive([](QWidget& form) {
    Click(form, "cmdOK");
    EXPECT_FALSE(form.isVisible());
  });
  Drive([](QWidget& form) {
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
  });
}

TEST(AboutForm, DescribesTheProgram) {
  Drive([&](QWidget& form) {
    EXPECT_EQ(Find<QLabel>(form, "lblProduct").text(), "Vantorium");
    EXPECT_EQ(Find<QLabel>(form, "lblPurpose").text(), "Web galleries of your photographs");
  });
}

TEST(AboutForm, AClickOnTheAddressOpensIt) {
  Addresses addresses;
  Drive([&](QWidget& form) {
    auto& label = Find<QLabel>(form, "Label4");
    QTest::mouseMove(&label, QPoint(20, label.height() / 2));
    QTest::mouseClick(&label, Qt::LeftButton, {}, QPoint(20, label.height() / 2));
  });
  EXPECT_EQ(addresses.opened, QList<QUrl>{QUrl("https://vantorium.example/")});
}

TEST(AboutForm, TheAddressCanBeOpenedWithTheKeyboard) {
  Addresses addresses;
  Drive([&](QWidget& form) {
    auto& label = Find<QLabel>(form, "Label4");
    QTest::keyClick(&form, Qt::Key_Tab);
    ASSERT_TRUE(label.hasFocus());
    QTest::keyClick(&label, Qt::Key_Tab);  // to the link in the label
    ASSERT_TRUE(label.hasFocus());
    QTest::keyClick(&label, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
  });
  EXPECT_EQ(addresses.opened, QList<QUrl>{QUrl("https://vantorium.example/")});
}

}  // namespace
}  // namespace vantorium::ui

#include "frmAboutTest.moc"
