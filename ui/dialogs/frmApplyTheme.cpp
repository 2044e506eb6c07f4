#include "ui/dialogs/frmApplyTheme.h"

#include "ui/model/dialogs/ThemeModel.h"
#include "ui/qt/QtText.h"
#include "ui_frmApplyTheme.h"

#include <QIcon>
#include <QPainter>

namespace vantorium::ui {
namespace {

QPixmap Framed(QPixmap picture, const QColor& color, int width) {
  QPainter painter(&picture);
  painter.setPen(QPen(color, 2.0 * width));  // half of a line on the edge is outside
  painter.drawRect(picture.rect());
  return picture;
}

/// Returns the picture of a theme, or a grey one if it has none that can be read. While it is selected it has a frame
/// in place of the usual tint, as its colors are what the user wants to see.
QIcon PictureOf(const core::ThemeFile& theme, const QSize& size, const QPalette& palette) {
  QPixmap picture;
  if (!theme.picture || !picture.load(ToQt(theme.picture->string()))) {
    picture = QPixmap(size);
    picture.fill(Qt::gray);
  }
  constexpr int kThin = 1;
  constexpr int kThick = 6;
  QIcon icon(Framed(picture, palette.color(QPalette::Mid), kThin));
  icon.addPixmap(Framed(picture, palette.color(QPalette::Highlight), kThick), QIcon::Selected);
  return icon;
}

}  // namespace

frmApplyTheme::frmApplyTheme(ThemeModel& model, QWidget* parent)
    : QDialog(parent), model_(model), ui_(std::make_unique<Ui::frmApplyTheme>()) {
  ui_->setupUi(this);
  ShowThemes();
  connect(ui_->listThemes, &QListWidget::currentRowChanged, this,
          [this](int row) { model_.Choose(static_cast<std::size_t>(row)); });
  connect(ui_->listThemes, &QListWidget::itemDoubleClicked, this, &frmApplyTheme::accept);
}

frmApplyTheme::~frmApplyTheme() = default;

void frmApplyTheme::ShowThemes() {
  for (std::size_t i = 0; i < model_.Themes().size(); ++i) {
    const QIcon picture = PictureOf(model_.Themes()[i], ui_->listThemes->iconSize(), palette());
    ui_->listThemes->addItem(new QListWidgetItem(picture, ToQt(model_.Caption(i))));
  }
  ui_->listThemes->setCurrentRow(static_cast<int>(model_.Chosen()));
}

void frmApplyTheme::accept() {
  if (model_.Accept()) QDialog::accept();
}

}  // namespace vantorium::ui
