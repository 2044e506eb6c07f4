#include "ui/dialogs/frmWatermark.h"

#include "core/Choices.h"
#include "ui/main/WaitPointer.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/AlignWidths.h"
#include "ui/widgets/CodeBoxes.h"
#include "ui/widgets/FocusLoss.h"
#include "ui_frmWatermark.h"

#include <QShowEvent>

namespace vantorium::ui {
namespace {

void ShowLines(QPlainTextEdit& control, int count) {
  const int border = control.frameWidth() + static_cast<int>(control.document()->documentMargin());
  control.setFixedHeight(count * control.fontMetrics().lineSpacing() + 2 * border);
}

}  // namespace

frmWatermark::frmWatermark(const std::string& title, const image::WatermarkSettings& watermark, std::int16_t quality,
                           const SampleSources& sample, const SamplePorts& samplePorts, const WatermarkPorts& ports,
                           QWidget* owner)
    : QDialog(owner), ui_(std::make_unique<Ui::frmWatermark>()) {
  ui_->setupUi(this);
  setWindowTitle(ToQt(title));
  AlignWidths({ui_->lblCaption, ui_->lblPlacement, ui_->btnBrowseFont, ui_->lblAlphaValue, ui_->lblJPEGQuality});
  box_ = std::make_unique<QtSampleBox>(*this, *ui_->pbPreview);
  model_ = std::make_unique<WatermarkModel>(watermark, quality, sample, samplePorts, ports, *box_);
  ShowSettings();
  ConnectCaption();
  ConnectButtons();
  Bind(*ui_->sliderAlpha, *ui_->lblAlpha, model_->Settings().sliderAlpha, &WatermarkModel::SetAlpha);
  Bind(*ui_->sliderQuality, *ui_->lblQuality, model_->Quality(), &WatermarkModel::SetQuality);
}

frmWatermark::~frmWatermark() = default;

void frmWatermark::ShowSettings() {
  const image::WatermarkSettings& settings = model_->Settings();
  ui_->checkUseWatermark->setChecked(core::IsOn(settings.checkUseWatermark));
  ShowCode(*ui_->textWatermark, settings.textWatermark);
  ui_->textWatermark->selectAll();
  ShowLines(*ui_->textWatermark, 3);
  for (const std::string_view placement : TextPlacements()) ui_->comboTextPlacement->addItem(ToQt(placement));
  ui_->comboTextPlacement->setCurrentIndex(model_->WorkingPlacement());
  ui_->lblFont->setText(ToQt(model_->FontSummary()));
}

void frmWatermark::ConnectCaption() {
  connect(ui_->checkUseWatermark, &QCheckBox::clicked, this, [this](bool use) { model_->SetUseWatermark(use); });
  connect(ui_->textWatermark, &QPlainTextEdit::textChanged, this,
          [this] { model_->EditText(CodeOf(*ui_->textWatermark)); });
  ui_->textWatermark->installEventFilter(this);
  connect(ui_->comboTextPlacement, &QComboBox::currentIndexChanged, this,
          [this](int index) { model_->SetPlacement(static_cast<std::int16_t>(index)); });
}

void frmWatermark::ConnectButtons() {
  connect(ui_->btnBrowseFont, &QPushButton::clicked, this, &frmWatermark::BrowseFont);
  connect(ui_->btnPreview, &QPushButton::clicked, this, [this] { model_->Preview(); });
  connect(ui_->OKButton, &QPushButton::clicked, this, [this] { model_->Apply(); });
  connect(ui_->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

void frmWatermark::Bind(QSlider& control, QLabel& label, int value, void (WatermarkModel::*set)(std::int16_t)) {
  control.setValue(value);
  label.setNum(value);
  label.setMinimumWidth(label.fontMetrics().horizontalAdvance("000"));  // keeps the layout still
  control.setTracking(false);                                           // while dragging, only the number follows
  connect(&control, &QSlider::sliderMoved, &label, qOverload<int>(&QLabel::setNum));
  connect(&control, &QSlider::valueChanged, this, [this, set, &label](int moved) {
    label.setNum(moved);
    (*model_.*set)(static_cast<std::int16_t>(moved));
  });
}

void frmWatermark::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous()) QMetaObject::invokeMethod(this, &frmWatermark::ShowSample, Qt::QueuedConnection);
}

bool frmWatermark::eventFilter(QObject* watched, QEvent* event) {
  if (LeavesControl(*event)) model_->LeaveText();
  return QDialog::eventFilter(watched, event);
}

void frmWatermark::ShowSample() {
  const WaitPointer wait(*this);
  model_->Open();
}

void frmWatermark::BrowseFont() {
  model_->BrowseFont();
  ui_->lblFont->setText(ToQt(model_->FontSummary()));
}

void frmWatermark::reject() {
  model_->Cancel();
  QDialog::reject();
}

bool EditWatermark(const std::string& title, image::WatermarkSettings& watermark, std::int16_t& quality,
                   const SampleSources& sample, const SamplePorts& samplePorts, const WatermarkPorts& ports,
                   QWidget* owner) {
  frmWatermark dialog(title, watermark, quality, sample, samplePorts, ports, owner);
  dialog.exec();
  if (dialog.Model().Cancelled()) return false;
  watermark = dialog.Model().Settings();
  quality = dialog.Model().Quality();
  return true;
}

}  // namespace vantorium::ui
