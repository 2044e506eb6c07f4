#include "ui/files/frmPreview.h"

#include "image/Photograph.h"
#include "ui/files/ReadPictureFile.h"
#include "ui/qt/QtPicture.h"
#include "ui/qt/QtText.h"
#include "ui_frmPreview.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace vantorium::ui {
namespace {

/// Returns a size that covers each screen that the window could be on, in pixels.
QSize LargestScreen() {
  QSize largest;
  for (const QScreen* screen : QGuiApplication::screens()) {
    largest = largest.expandedTo((QSizeF(screen->size()) * screen->devicePixelRatio()).toSize());
  }
  return largest;
}

/// The middle of a photograph with its corrections; null if the file is none.
QImage MiddleOfPhotograph(const std::filesystem::path& native, QSize atMost, image::Corrections corrections) {
  image::cDIBSection dib;
  if (!image::LoadPhotograph(dib, native, corrections)) return {};
  const QImage picture = ImageOf(dib);
  QRect part({}, picture.size().boundedTo(atMost));
  part.moveTo(picture.width() / 2 - part.width() / 2, picture.height() / 2 - part.height() / 2);
  return picture.copy(part);
}

QImage Middle(const std::filesystem::path& native, image::Corrections corrections) {
  const QSize most = LargestScreen();
  const QImage photograph = corrections.Any() ? MiddleOfPhotograph(native, most, corrections) : QImage();
  return photograph.isNull() ? ReadMiddleOfPictureFile(native, most) : photograph;
}

}  // namespace

frmPreview::frmPreview(const env::PathMap& paths, QWidget* parent)
    : QDialog(parent), paths_(paths), ui_(std::make_unique<Ui::frmPreview>()) {
  ui_->setupUi(this);
  setBackgroundRole(QPalette::Shadow);
  setAutoFillBackground(true);
  setGeometry(screen()->geometry());
  setWindowState(Qt::WindowFullScreen);
  connect(ui_->btnClose, &QPushButton::clicked, this, &QDialog::reject);
}

frmPreview::~frmPreview() = default;

void frmPreview::SetPicture(const std::string& description, const std::string& file, image::Corrections corrections) {
  setWindowTitle("Full Screen Preview: " + ToQt(description));
  const auto native = paths_.ToNative(file);
  ui_->pic->setPixmap(native ? QPixmap::fromImage(Middle(*native, corrections)) : QPixmap());
  update();
}

void frmPreview::paintEvent(QPaintEvent*) {
  QPixmap picture = ui_->pic->pixmap();
  if (picture.isNull()) return;
  picture.setDevicePixelRatio(devicePixelRatioF());
  const QSizeF size = picture.deviceIndependentSize();
  QPainter(this).drawPixmap(QPointF(width() / 2.0 - size.width() / 2.0, height() / 2.0 - size.height() / 2.0), picture);
}

void frmPreview::mousePressEvent(QMouseEvent*) {
  reject();
}

}  // namespace vantorium::ui
