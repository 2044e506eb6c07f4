#include "ui/files/ReadPictureFile.h"

#include "ui/qt/QtText.h"

#include <QImageReader>
#include <functional>

namespace vantorium {
namespace {

QImage Read(const std::filesystem::path& native, const std::function<void(QImageReader&)>& prepare) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(native, error)) return {};  // opening a pipe would block
  QImageReader reader(ToQt(native.string()));
  reader.setDecideFormatFromContent(true);
  prepare(reader);
  return reader.read();
}

}  // namespace

QImage ReadPictureFile(const std::filesystem::path& native) {
  return Read(native, [](QImageReader&) {});
}

QImage ReadMiddleOfPictureFile(const std::filesystem::path& native, QSize atMost) {
  return Read(native, [atMost](QImageReader& reader) {
    const QSize size = reader.size();
    if (!size.isValid()) return;
    const QSize part = size.boundedTo(atMost);
    reader.setClipRect({QPoint(size.width() / 2 - part.width() / 2, size.height() / 2 - part.height() / 2), part});
  });
}

}  // namespace vantorium
