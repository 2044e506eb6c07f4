#include "ui/files/ReadPictureFile.h"

#include "ui/qt/QtText.h"

#include <QImageReader>
#include <functional>

namespace vantorium::ui {
namespace {

/// The rectangle of at most `atMost` in the middle of a picture.
QRect MiddleOf(QSize picture, QSize atMost) {
  const QSize part = picture.boundedTo(atMost);
  return {QPoint(picture.width() / 2 - part.width() / 2, picture.height() / 2 - part.height() / 2), part};
}

QImage Read(const std::filesystem::path& native, const std::function<QImage(QImageReader&)>& read) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(native, error)) return {};  // opening a pipe would block
  QImageReader reader(ToQt(native.string()));
  reader.setDecideFormatFromContent(true);
  return read(reader);
}

}  // namespace

QImage ReadPictureFile(const std::filesystem::path& native) {
  return Read(native, [](QImageReader& reader) { return reader.read(); });
}

QImage ReadMiddleOfPictureFile(const std::filesystem::path& native, QSize atMost) {
  return Read(native, [atMost](QImageReader& reader) { return ReadMiddle(reader, atMost); });
}

QImage ReadMiddle(QImageReader& reader, QSize atMost) {
  if (const QSize size = reader.size(); size.isValid()) {
    reader.setClipRect(MiddleOf(size, atMost));
    return reader.read();
  }
  const QImage whole = reader.read();
  return whole.copy(MiddleOf(whole.size(), atMost));
}

}  // namespace vantorium::ui
