#pragma once

#include "ui/model/dialogs/ImageFiltersModel.h"
#include "ui/qt/QtSampleBox.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QSlider>
#include <memory>
#include <string>

namespace Ui {
class frmImageFilters;
}

namespace vantorium::ui {

/// The window of ImageFiltersModel.
class frmImageFilters : public QDialog {
  Q_OBJECT

 public:
  frmImageFilters(const std::string& title, const image::ImageFilterSettings& filters, const SampleSources& sample,
                  const SamplePorts& ports, QWidget* owner);
  ~frmImageFilters() override;

  [[nodiscard]] const ImageFiltersModel& Model() const { return *model_; }

 protected:
  void showEvent(QShowEvent* event) override;
  void reject() override;

 private:
  void Bind(QCheckBox& control, std::int16_t image::ImageFilterSettings::*field);
  void Bind(QSlider& control, QLabel& label, std::int16_t image::ImageFilterSettings::*field);
  void ShowSample();
  void Preview();

  std::unique_ptr<Ui::frmImageFilters> ui_;
  std::unique_ptr<QtSampleBox> box_;
  std::unique_ptr<ImageFiltersModel> model_;
};

/// Lets the user edit `filters` in a dialog over `owner`, which may be null. Returns false and leaves `filters` as they
/// are if the user cancels.
[[nodiscard]] bool EditImageFilters(const std::string& title, image::ImageFilterSettings& filters,
                                    const SampleSources& sample, const SamplePorts& ports, QWidget* owner);

}  // namespace vantorium::ui
