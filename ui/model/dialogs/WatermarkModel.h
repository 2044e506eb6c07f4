#pragma once

#include "env/RuntimeFailure.h"
#include "env/Screen.h"
#include "env/mCommonDialogs.h"
#include "image/TextRaster.h"
#include "image/WatermarkSettings.h"
#include "ui/model/dialogs/SampleDialog.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vantorium::ui {

/// The placements of a watermark as the dialog names them, in the order of their numbers.
[[nodiscard]] std::span<const std::string_view> TextPlacements();

/// What else the watermark dialog needs from the program.
struct WatermarkPorts {
  env::mCommonDialogs& dialogs;
  const image::TextRaster& texts;
  const env::Screen& screen;
};

/// The dialog for the watermark of one target and the JPEG quality of its files. Its sample is made like a gallery's
/// image: resized, watermarked, then compressed as JPEG.
class WatermarkModel {
 public:
  /// Clamps values to the range of their slider.
  WatermarkModel(const image::WatermarkSettings& settings, std::int16_t quality, const SampleSources& sources,
                 const SamplePorts& samplePorts, const WatermarkPorts& ports, SampleBox& box);

  /// Call when the dialog has opened. Loads the sample and shows it.
  void Open();

  // Handlers of the controls. All except EditText update the sample.
  void SetUseWatermark(bool use);
  void EditText(const std::string& text);
  void LeaveText();  ///< updates the sample only if the text was edited since it was last left
  void SetPlacement(std::int16_t placement);
  void SetAlpha(std::int16_t alpha);
  void SetQuality(std::int16_t quality);
  void BrowseFont();

  void Preview();

  void Apply();
  void Cancel() { dialog_.Close(true); }

  [[nodiscard]] bool Cancelled() const { return dialog_.Cancelled(); }
  [[nodiscard]] bool TextChanged() const { return textChanged_; }
  /// Font and placement are those of the last Apply; the rest is what the controls show.
  [[nodiscard]] const image::WatermarkSettings& Settings() const { return settings_; }
  [[nodiscard]] std::int16_t Quality() const { return quality_; }

  // Values that the controls show and that are not applied yet.
  [[nodiscard]] const env::FontDescription& WorkingFont() const { return workingFont_; }
  [[nodiscard]] std::int16_t WorkingPlacement() const { return workingPlacement_; }
  /// The working font in words, such as "Arial, 36 points, bold".
  [[nodiscard]] std::string FontSummary() const;

 private:
  [[nodiscard]] image::WatermarkSettings WorkingSettings() const;
  void DrawWatermark(image::cDIBSection& picture) const;
  void Tell(const env::RuntimeFailure& failure) const;

  image::WatermarkSettings settings_;
  std::int16_t quality_;
  env::FontDescription workingFont_;
  std::int16_t workingPlacement_;
  bool textChanged_ = false;

  SamplePorts samplePorts_;
  WatermarkPorts ports_;
  SampleBox& box_;
  std::string tempFolder_;
  SampleDialog dialog_;
};

}  // namespace vantorium::ui
