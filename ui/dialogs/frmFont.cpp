#include "ui/dialogs/frmFont.h"

#include "ui/model/dialogs/FontModel.h"
#include "ui/qt/QtColor.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/OneLineValidator.h"
#include "ui_frmFont.h"

#include <QSignalBlocker>
#include <algorithm>
#include <utility>

namespace vantorium::ui {
namespace {

constexpr int kLargestSample = 48;  // points; the sample has no room for more

QFont SampleFontOf(const env::FontDescription& font) {
  QFont result(ToQt(font.Name));
  result.setPointSize(std::clamp(font.Size, kSmallestFont, kLargestSample));
  result.setBold(IsBold(font.Weight));
  result.setItalic(font.Italic);
  result.setUnderline(font.Underline);
  result.setStrikeOut(font.Strikeout);
  return result;
}

}  // namespace

frmFont::frmFont(const env::FontDescription& font, const std::vector<std::string>& faces, PickColor pickColor,
                 QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmFont>()), font_(font), pickColor_(std::move(pickColor)) {
  ui_->setupUi(this);
  ui_->textFontName->setValidator(new OneLineValidator(this));
  for (const std::string& face : faces) ui_->listFontNames->addItem(ToQt(face));
  ui_->spinFontSize->setRange(kSmallestFont, kLargestFont);
  ShowFont();
  ConnectFace();
  ConnectRest();
}

frmFont::~frmFont() = default;

void frmFont::ShowFont() {
  ui_->textFontName->setText(ToQt(font_.Name));
  ui_->textFontName->selectAll();
  EditFace(ui_->textFontName->text());
  ui_->spinFontSize->setValue(font_.Size);
  font_.Size = ui_->spinFontSize->value();
  ui_->checkFontBold->setChecked(IsBold(font_.Weight));
  ui_->checkFontItalic->setChecked(font_.Italic);
  ui_->checkFontUnderline->setChecked(font_.Underline);
  ui_->checkFontStrikeout->setChecked(font_.Strikeout);
  ui_->btnFontColor->SetColor(font_.Color);
  ShowSample();
}

void frmFont::ConnectFace() {
  connect(ui_->textFontName, &QLineEdit::textEdited, this, &frmFont::EditFace);
  connect(ui_->listFontNames, &QListWidget::currentTextChanged, this, [this](const QString& name) {
    if (name.isEmpty()) return;
    ui_->textFontName->setText(name);
    EditFace(name);
  });
  connect(ui_->listFontNames, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
}

void frmFont::ConnectRest() {
  const auto edit = [this](auto env::FontDescription::*field, auto value) {
    font_.*field = value;
    ShowSample();
  };
  connect(ui_->spinFontSize, &QSpinBox::valueChanged, this,
          [edit](int size) { edit(&env::FontDescription::Size, size); });
  connect(ui_->checkFontBold, &QCheckBox::toggled, this,
          [this, edit](bool bold) { edit(&env::FontDescription::Weight, WeightFor(bold, font_.Weight)); });
  connect(ui_->checkFontItalic, &QCheckBox::toggled, this,
          [edit](bool on) { edit(&env::FontDescription::Italic, on); });
  connect(ui_->checkFontUnderline, &QCheckBox::toggled, this,
          [edit](bool on) { edit(&env::FontDescription::Underline, on); });
  connect(ui_->checkFontStrikeout, &QCheckBox::toggled, this,
          [edit](bool on) { edit(&env::FontDescription::Strikeout, on); });
  connect(ui_->btnFontColor, &QPushButton::clicked, this, &frmFont::ChooseColor);
  connect(ui_->OKButton, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

void frmFont::EditFace(const QString& name) {
  font_.Name = FromQt(name);
  ui_->OKButton->setEnabled(!name.trimmed().isEmpty());
  const QSignalBlocker quiet(ui_->listFontNames);
  const auto found = ui_->listFontNames->findItems(name, Qt::MatchStartsWith);
  const bool any = !name.isEmpty() && !found.isEmpty();
  if (any) ui_->listFontNames->scrollToItem(found.front(), QAbstractItemView::PositionAtTop);
  const bool whole = any && found.front()->text().compare(name, Qt::CaseInsensitive) == 0;
  ui_->listFontNames->setCurrentItem(whole ? found.front() : nullptr);
  ShowSample();
}

void frmFont::ChooseColor() {
  if (!pickColor_(font_.Color)) return;
  ui_->btnFontColor->SetColor(font_.Color);
  ShowSample();
}

void frmFont::ShowSample() {
  ui_->lblFontSample->setFont(SampleFontOf(font_));
  QPalette colors = ui_->lblFontSample->palette();
  colors.setColor(QPalette::WindowText, ToQt(core::Color{font_.Color}));
  colors.setColor(QPalette::Window, NeedsDarkGround(font_.Color) ? Qt::black : Qt::white);
  ui_->lblFontSample->setPalette(colors);
}

}  // namespace vantorium::ui
