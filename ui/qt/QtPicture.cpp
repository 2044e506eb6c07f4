#include "ui/qt/QtPicture.h"

#include "ui/qt/QtText.h"

#include <QApplication>
#include <QClipboard>
#include <algorithm>
#include <limits>

namespace vantorium::ui {
namespace {

/// Returns an upright copy of `count` rows, of which row `top`, counted from above, is the first.
QImage RowsOf(const image::cDIBSection& picture, int top, int count) {
  QImage rows(picture.width(), count, QImage::Format_BGR888);
  if (rows.isNull()) return rows;  // no memory
  const int width = picture.width() * 3;
  for (int y = 0; y < count; ++y) std::copy_n(picture.Row(picture.height() - 1 - top - y), width, rows.scanLine(y));
  return rows;
}

/// One direction of a blit after clipping: `length` pixels, read from `source` on and written `skipped` pixels after
/// the target's start.
struct Run {
  int source;
  int skipped;
  int length;
};

/// `own` is the picture's length, used if `length` is negative; `room` is how many pixels the target can take.
Run Clipped(int source, int length, int own, int sourceLength, int room) {
  using Wide = std::int64_t;
  const Wide wanted = length < 0 ? own : length;
  const Wide skipped = std::max<Wide>(0, -Wide{source});
  const Wide end = std::min<Wide>({wanted, Wide{sourceLength} - source, room});
  if (end <= skipped) return {0, 0, 0};
  return {static_cast<int>(source + skipped), static_cast<int>(skipped), static_cast<int>(end - skipped)};
}

}  // namespace

QImage ImageOf(const image::cDIBSection& picture) {
  if (picture.DIBSectionBitsPtr() == nullptr) return {};
  return RowsOf(picture, 0, picture.height());
}

void LoadPictureBlt(image::cDIBSection& picture, const QImage& source, const BlitArea& from) {
  if (picture.DIBSectionBitsPtr() == nullptr) return;
  const Run across = Clipped(from.x, from.width, picture.width(), source.width(), picture.width());
  const Run down = Clipped(from.y, from.height, picture.height(), source.height(), picture.height());
  if (across.length == 0 || down.length == 0) return;
  const QImage area =
      source.copy(across.source, down.source, across.length, down.length).convertToFormat(QImage::Format_BGR888);
  for (int y = 0; y < down.length; ++y) {
    std::copy_n(area.constScanLine(y), across.length * 3,
                picture.Row(picture.height() - 1 - down.skipped - y) + across.skipped * 3);
  }
}

void PaintPicture(const image::cDIBSection& picture, QPainter& target, const BlitArea& to, int sourceX, int sourceY) {
  if (picture.DIBSectionBitsPtr() == nullptr) return;
  constexpr int kNoLimit = std::numeric_limits<int>::max();
  const Run across = Clipped(sourceX, to.width, picture.width(), picture.width(), kNoLimit);
  const Run down = Clipped(sourceY, to.height, picture.height(), picture.height(), kNoLimit);
  if (across.length == 0 || down.length == 0) return;
  target.drawImage(QPoint(to.x + across.skipped, to.y + down.skipped), RowsOf(picture, down.source, down.length),
                   QRect(across.source, 0, across.length, down.length));
}

bool CreateFromPicture(image::cDIBSection& picture, const QImage& source) {
  if (!picture.Create(source.width(), source.height())) return false;
  QImage opaque(source.size(), QImage::Format_RGB32);
  if (opaque.isNull()) {  // no memory
    picture.ClearUp();
    return false;
  }
  opaque.fill(Qt::white);
  QPainter(&opaque).drawImage(opaque.rect(), source);  // pixel for pixel, whatever the source's device pixel ratio
  LoadPictureBlt(picture, opaque);
  return true;
}

bool CopyToClipboard(const image::cDIBSection& picture, bool asDIB, env::MessageBoxPort& boxes) {
  if (asDIB) {
    boxes.Show(env::BoxKind::Plain, env::BoxButtons::Ok, FromQt(QApplication::applicationDisplayName()),
               "I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!");
    return false;
  }
  const QImage copy = ImageOf(picture);
  if (copy.isNull()) return false;
  QApplication::clipboard()->setImage(copy);
  return true;
}

}  // namespace vantorium::ui
