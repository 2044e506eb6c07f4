// Mnemonics of the main window's controls.
#include "tests/ui/MainWindowHarness.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenuBar>
#include <map>

namespace vantorium::ui {
namespace {

using fakes::MainWindowHarness;

QString LetterOf(const QString& text) {
  return QKeySequence::mnemonic(text).toString();
}

/// A button's mnemonic comes from its shortcut, which selects one if the text has two.
QString LetterOf(const QAbstractButton& button) {
  return button.shortcut().toString();
}

TEST(Mnemonics, AreUniqueAmongEachPageAndTheMenus) {
  MainWindowHarness harness;
  harness.Start();
  for (const char* name :
       {"frmGallery", "frmImages", "frmImageWrapper", "frmThumbnails", "frmCaptions", "frmPageLinks"}) {
    std::map<QString, QString> taken;
    for (const QAction* menu : harness.window->menuBar()->actions()) taken[LetterOf(menu->text())] = menu->text();
    const auto take = [&](const QString& letter, const QString& text, const QWidget& control) {
      // Skips controls of this frame: it is never shown together with the frame for a single layout.
      const QWidget* frames = fakes::Find<QWidget>(*harness.window, "frmFrameLayoutMultipleFrames")
                                  .findChild<QWidget*>(control.objectName());
      if (letter.isEmpty() || frames != nullptr) return;
      EXPECT_EQ(taken.count(letter), 0U) << name << ": " << FromQt(text) << " and " << FromQt(taken[letter]);
      taken[letter] = text;
    };
    QWidget& page = fakes::Find<QWidget>(*harness.window, name);
    for (const auto* button : page.findChildren<QAbstractButton*>()) take(LetterOf(*button), button->text(), *button);
    for (const auto* label : page.findChildren<QLabel*>()) {
      if (label->buddy() != nullptr) take(LetterOf(label->text()), label->text(), *label);
    }
  }
}

}  // namespace
}  // namespace vantorium::ui
