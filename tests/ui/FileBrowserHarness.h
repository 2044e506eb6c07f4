#pragma once

#include "env/mFileFunctions.h"
#include "tests/fakes/JpegMaker.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/ui/FormDriver.h"

#include <QAbstractItemView>
#include <QImage>
#include <QSettings>

namespace vantorium::fakes {

/// Drive C: with some photographs, for tests of the dialogs that choose files and folders.
class FileBrowserHarness {
 public:
  FileBrowserHarness() {
    // Qt saves the state of its file dialog in the settings.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, Native("settings"));
    disk.Write("photos/a.jpg", MakeJpeg({.width = 40, .height = 30}));
    disk.Write("photos/b.JPG", MakeJpeg({.width = 64, .height = 48}));
    disk.Write("photos/broken.jpg", "This is no picture.");
    disk.Write("photos/c.jfif", MakeJpeg({.width = 8, .height = 8}));
    disk.Write("photos/notes.txt", "Notes");
    disk.Write("photos/sub/d.jpg", MakeJpeg({}));
    QImage drawing(20, 10, QImage::Format_RGB32);
    drawing.fill(Qt::red);
    drawing.save(Native("photos/drawing.png"));
  }

  [[nodiscard]] QString Native(const std::string& name) const {
    return QString::fromStdString((disk.Path() / name).string());
  }

  TemporaryFolder disk;
  env::PathMap paths{{{'C', disk.Path().string()}}};
  env::RegionalFormats formats;
  env::mFileFunctions files{paths, formats};
  RecordingMessageBox boxes;
};

/// Waits for a row with that text in a view and returns it. Throws std::runtime_error if there is none.
inline QModelIndex RowOf(QAbstractItemView& view, const QString& text) {
  const auto find = [&] {
    QModelIndexList found;
    if (view.model()->rowCount(view.rootIndex()) > 0) {
      found = view.model()->match(view.model()->index(0, 0, view.rootIndex()), Qt::DisplayRole, text, 1,
                                  Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
    }
    return found.isEmpty() ? QModelIndex() : found[0];
  };
  if (!QTest::qWaitFor([&] { return find().isValid(); })) throw std::runtime_error("no row " + text.toStdString());
  return find();
}

inline void ClickRow(QAbstractItemView& view, const QModelIndex& row, Qt::KeyboardModifiers modifiers = {}) {
  view.scrollTo(row);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, view.visualRect(row).center());
}

}  // namespace vantorium::fakes
