#pragma once

#include "image/ImageFilterSettings.h"
#include "image/NoiseStream.h"
#include "ui/model/dialogs/SampleDialog.h"

namespace vantorium::ui {

/// The dialog for the filters of one target. Its sample is compressed as JPEG at the source's full size, then shrunk,
/// then filtered: noise, fade, brightness, grayscale. (A gallery's image is shrunk first and compressed last.)
class ImageFiltersModel {
 public:
  /// Clamps values to the range of their slider.
  ImageFiltersModel(const image::ImageFilterSettings& settings, const SampleSources& sources, const SamplePorts& ports,
                    SampleBox& box);

  /// Call when the dialog has opened. Loads the sample and shows it.
  void Open();

  /// Call when a check box is clicked or a slider moves. The sample does not change until the next preview.
  void Set(std::int16_t image::ImageFilterSettings::*field, std::int16_t value);

  /// Shows the sample with the current settings. Compresses the source again if a setting changed since the last
  /// preview; otherwise the next preview does.
  void Preview();

  /// Switches off filters that would have no effect, and closes the dialog.
  void Apply();
  void Cancel() { dialog_.Close(true); }

  [[nodiscard]] bool Cancelled() const { return dialog_.Cancelled(); }
  [[nodiscard]] bool SettingsChanged() const { return settingsChanged_; }
  [[nodiscard]] const image::ImageFilterSettings& Settings() const { return settings_; }

 private:
  void Filter(image::cDIBSection& picture);

  image::ImageFilterSettings settings_;
  SampleBox& box_;
  SampleDialog dialog_;
  bool settingsChanged_ = false;
  image::cDIBSection compressed_;
  image::NoiseStream noise_{0, 0};  // continues from preview to preview
};

}  // namespace vantorium::ui
