#include "ui/dialogs/frmAbout.h"

#include "ui/qt/QtText.h"
#include "ui_frmAbout.h"

#include <QIcon>

namespace vantorium::ui {
namespace {

constexpr QSize kPictureSize(96, 96);

}  // namespace

frmAbout::frmAbout(const ProgramVersion& version, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmAbout>()) {
  ui_->setupUi(this);
  ui_->lblVersion->setText(ToQt(version.Text()));
  ui_->picAbout->setPixmap(QIcon(":/vantorium/vantorium.svg").pixmap(kPictureSize, devicePixelRatio()));
}

frmAbout::~frmAbout() = default;

}  // namespace vantorium::ui
