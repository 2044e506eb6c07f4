#include "ui/main/frmSplash.h"

#include "ui_frmSplash.h"

#include <QIcon>
#include <QScreen>

namespace vantorium::ui {
namespace {

constexpr QSize kPictureSize(420, 200);

}  // namespace

frmSplash::frmSplash() : QWidget(nullptr, Qt::SplashScreen), ui_(std::make_unique<Ui::frmSplash>()) {
  ui_->setupUi(this);
  ui_->picSplash->setPixmap(QIcon(":/vantorium/splash.svg").pixmap(kPictureSize, devicePixelRatio()));
  resize(sizeHint());
  move(screen()->availableGeometry().center() - rect().center());
}

frmSplash::~frmSplash() = default;

void frmSplash::Step() {
  ui_->pb1->setValue(ui_->pb1->value() + 1);
}

}  // namespace vantorium::ui
