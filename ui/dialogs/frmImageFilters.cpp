#include "ui/dialogs/frmImageFilters.h"

#include "core/Choices.h"
#include "ui/main/WaitPointer.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/AlignWidths.h"
#include "ui_frmImageFilters.h"

#include <QShowEvent>

namespace vantorium::ui {

frmImageFilters::frmImageFilters(const std::string& title, const image::ImageFilterSettings& filters,
                                 const SampleSources& sample, const SamplePorts& ports, QWidget* owner)
    : QDialog(owner), ui_(std::make_unique<Ui::frmImageFilters>()) {
  ui_->setupUi(this);
  setWindowTitle(ToQt(title));
  AlignWidths({ui_->checkBrightness, ui_->checkFade, ui_->checkNoise, ui_->lbl});
  box_ = std::make_unique<QtSampleBox>(*this, *ui_->pbPreview);
  model_ = std::make_unique<ImageFiltersModel>(filters, sample, ports, *box_);
  Bind(*ui_->checkGrayscale, &image::ImageFilterSettings::checkGrayscale);
  Bind(*ui_->checkBrightness, &image::ImageFilterSettings::checkBrightness);
  Bind(*ui_->checkFade, &image::ImageFilterSettings::checkFade);
  Bind(*ui_->checkNoise, &image::ImageFilterSettings::checkNoise);
  Bind(*ui_->checkNoiseRandom, &image::ImageFilterSettings::checkNoiseRandom);
  Bind(*ui_->sliderBrightness, *ui_->lblBrightness, &image::ImageFilterSettings::sliderBrightness);
  Bind(*ui_->sliderFade, *ui_->lblFade, &image::ImageFilterSettings::sliderFade);
  Bind(*ui_->sliderNoise, *ui_->lblNoise, &image::ImageFilterSettings::sliderNoise);
  Bind(*ui_->sliderQuality, *ui_->lblQuality, &image::ImageFilterSettings::sliderQuality);
  connect(ui_->btnPreview, &QPushButton::clicked, this, &frmImageFilters::Preview);
  connect(ui_->btnOK, &QPushButton::clicked, this, [this] { model_->Apply(); });
  connect(ui_->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmImageFilters::~frmImageFilters() = default;

void frmImageFilters::Bind(QCheckBox& control, std::int16_t image::ImageFilterSettings::*field) {
  control.setChecked(core::IsOn(model_->Settings().*field));
  connect(&control, &QCheckBox::clicked, this,
          [this, field](bool checked) { model_->Set(field, core::FlagOf(checked)); });
}

void frmImageFilters::Bind(QSlider& control, QLabel& label, std::int16_t image::ImageFilterSettings::*field) {
  control.setValue(model_->Settings().*field);
  label.setNum(control.value());
  label.setMinimumWidth(label.fontMetrics().horizontalAdvance("-000"));  // keeps the layout still
  connect(&control, &QSlider::valueChanged, this, [this, field, &label](int value) {
    label.setNum(value);
    model_->Set(field, static_cast<std::int16_t>(value));
  });
}

void frmImageFilters::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous()) QMetaObject::invokeMethod(this, &frmImageFilters::ShowSample, Qt::QueuedConnection);
}

void frmImageFilters::ShowSample() {
  const WaitPointer wait(*this);
  model_->Open();
}

void frmImageFilters::Preview() {
  const WaitPointer wait(*this);
  model_->Preview();
}

void frmImageFilters::reject() {
  model_->Cancel();
  QDialog::reject();
}

bool EditImageFilters(const std::string& title, image::ImageFilterSettings& filters, const SampleSources& sample,
                      const SamplePorts& ports, QWidget* owner) {
  frmImageFilters dialog(title, filters, sample, ports, owner);
  dialog.exec();
  if (dialog.Model().Cancelled()) return false;
  filters = dialog.Model().Settings();
  return true;
}

}  // namespace vantorium::ui
