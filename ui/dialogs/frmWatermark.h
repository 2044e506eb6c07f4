#pragma once

#include "ui/model/dialogs/WatermarkModel.h"
#include "ui/qt/QtSampleBox.h"

#include <QDialog>
#include <QLabel>
#include <QSlider>
#include <memory>
#include <string>

namespace Ui {
class frmWatermark;
}

namespace vantorium::ui {

/// The window of WatermarkModel.
class frmWatermark : public QDialog {
  Q_OBJECT

 public:
  frmWatermark(const std::string& title, const image::WatermarkSettings& watermark, std::int16_t quality,
               const SampleSources& sample, const SamplePorts& samplePorts, const WatermarkPorts& ports,
               QWidget* owner);
  ~frmWatermark() override;

  [[nodiscard]] const WatermarkModel& Model() const { return *model_; }

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void reject() override;

 private:
  void ShowSettings();
  void ConnectCaption();
  void ConnectButtons();
  void Bind(QSlider& control, QLabel& label, int value, void (WatermarkModel::*set)(std::int16_t));
  void ShowSample();
  void BrowseFont();

  std::unique_ptr<Ui::frmWatermark> ui_;
  std::unique_ptr<QtSampleBox> box_;
  std::unique_ptr<WatermarkModel> model_;
};

/// Lets the user edit `watermark` and the JPEG `quality` of the same target in a dialog over `owner`, which may be
/// null. Returns false and leaves both as they are if the user cancels.
[[nodiscard]] bool EditWatermark(const std::string& title, image::WatermarkSettings& watermark, std::int16_t& quality,
                                 const SampleSources& sample, const SamplePorts& samplePorts,
                                 const WatermarkPorts& ports, QWidget* owner);

}  // namespace vantorium::ui
