#pragma once

#include "image/ImageFilterSettings.h"
#include "image/NoiseStream.h"
#include "ui/model/dialogs/SampleDialog.h"

namespace vantorium {

/// The dialog for the filters of one target. Its sample shows the JPEG quality at the source's full size, then shrinks,
/// then is filtered: noise, fade, brightness, grey. (A gallery's image is shrunk first and compressed last.)
class ImageFiltersModel {
 public:
  /// Values beyond the end of their slider are put there.
  ImageFiltersModel(const ImageFilterSettings& settings, const SampleSources& sources, const SamplePorts& ports,
                    SampleBox& box);

  /// The dialog has come up: loads the sample and shows it.
  void Open();

  /// A check box was clicked, or a slider moved. The sample stays until the next preview.
  void Set(std::int16_t ImageFilterSettings::*field, std::int16_t value);

  /// Shows the sample with the present settings. The source is compressed anew when something was set since the last
  /// preview; when nothing was, it is by the next one.
  void Preview();

  /// Switches off the filters that would do nothing, and closes the dialog.
  void Apply();
  void Cancel() { dialog_.Close(true); }

  [[nodiscard]] bool Cancelled() const { return dialog_.Cancelled(); }
  [[nodiscard]] bool SettingsChanged() const { return settingsChanged_; }
  [[nodiscard]] const ImageFilterSettings& Settings() const { return settings_; }

 private:
  void Filter(cDIBSection& picture);

  ImageFilterSettings settings_;
  SampleBox& box_;
  SampleDialog dialog_;
  bool settingsChanged_ = false;
  cDIBSection compressed_;
  NoiseStream noise_{0, 0};  // goes on from preview to preview
};

}  // namespace vantorium
