#include "ui/files/frmPreview.h"

#include "ui/files/ReadPictureFile.h"
#include "ui/qt/QtText.h"
#include "ui_frmPreview.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace vantorium {
namespace {

/// Returns a size that covers each screen that the window could be on, in pixels.
QSize LargestScreen() {
  QSize largest;
  for (const QScreen* screen : QGuiApplication::screens()) {
    largest = largest.expandedTo((QSizeF(screen->size()) * screen->devicePixelRatio()).toSize());
  }
  return largest;
}

}  // namespace

frmPreview::frmPreview(const PathMap& paths, QWidget* parent)
    : QDialog(parent), paths_(paths), ui_(std::make_unique<Ui::frmPreview>()) {
  ui_->setupUi(this);
  setBackgroundRole(QPalette::Shadow);
  setAutoFillBackground(true);
  setGeometry(screen()->geometry());
  setWindowState(Qt::WindowFullScreen);
  connect(ui_->btnClose, &QPushButton::clicked, this, &QDialog::reject);
}

frmPreview::~frmPreview() = default;

void frmPreview::SetPicture(const std::string& description, const std::string& file) {
  setWindowTitle("Full Screen Preview: " + ToQt(description));
  const auto native = paths_.ToNative(file);
  ui_->pic->setPixmap(native ? QPixmap::fromImage(ReadMiddleOfPictureFile(*native, LargestScreen())) : QPixmap());
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

}  // namespace vantorium
