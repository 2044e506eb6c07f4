#include "ui/model/dialogs/WatermarkModel.h"

#include "core/Choices.h"
#include "env/Numbers.h"
#include "image/Resample.h"
#include "image/Watermark.h"
#include "ui/model/dialogs/FontModel.h"

#include <algorithm>
#include <limits>

namespace vantorium::ui {
namespace {

constexpr std::string_view kPlacements[] = {"Top Left",
                                            "Top Center",
                                            "Top Right",
                                            "Left Center",
                                            "Center",
                                            "Right Center",
                                            "Bottom Left",
                                            "Bottom Center",
                                            "Bottom Right",
                                            "Top Left to Bottom Right",
                                            "Bottom Left to Top Right"};

std::int16_t Percentage(std::int16_t value) {
  return std::clamp<std::int16_t>(value, 1, 100);
}

std::int16_t Narrowed(std::int32_t value) {
  using Limits = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(std::clamp<std::int32_t>(value, Limits::min(), Limits::max()));
}

env::FontDescription FontOf(const image::WatermarkSettings& settings) {
  return {.Name = settings.FontName,
          .Size = settings.FontSize,
          .Weight = settings.FontWeight,
          .Italic = settings.FontItalic,
          .Underline = settings.FontUnderline,
          .Strikeout = settings.FontStrikeout,
          .Color = settings.Color};
}

void SetFont(image::WatermarkSettings& settings, const env::FontDescription& font) {
  settings.FontName = font.Name;
  settings.FontSize = Narrowed(font.Size);
  settings.FontWeight = Narrowed(font.Weight);
  settings.FontItalic = font.Italic;
  settings.FontUnderline = font.Underline;
  settings.FontStrikeout = font.Strikeout;
  settings.Color = font.Color;
}

}  // namespace

std::span<const std::string_view> TextPlacements() {
  return kPlacements;
}

WatermarkModel::WatermarkModel(const image::WatermarkSettings& settings, std::int16_t quality,
                               const SampleSources& sources, const SamplePorts& samplePorts,
                               const WatermarkPorts& ports, SampleBox& box)
    : settings_(settings),
      quality_(Percentage(quality)),
      workingFont_(FontOf(settings)),
      workingPlacement_(settings.comboTextPlacement),
      samplePorts_(samplePorts),
      ports_(ports),
      box_(box),
      tempFolder_(sources.tempFolderLocation),
      dialog_(sources, samplePorts, box) {
  settings_.sliderAlpha = Percentage(settings.sliderAlpha);
}

void WatermarkModel::Open() {
  if (!dialog_.Open()) return;
  textChanged_ = false;
  Preview();
}

void WatermarkModel::SetUseWatermark(bool use) {
  settings_.checkUseWatermark = core::FlagOf(use);
  Preview();
}

void WatermarkModel::EditText(const std::string& text) {
  settings_.textWatermark = text;
  textChanged_ = true;
}

void WatermarkModel::LeaveText() {
  if (!textChanged_) return;
  Preview();
  textChanged_ = false;
}

void WatermarkModel::SetPlacement(std::int16_t placement) {
  if (placement == workingPlacement_) return;
  workingPlacement_ = placement;
  Preview();
}

void WatermarkModel::SetAlpha(std::int16_t alpha) {
  settings_.sliderAlpha = alpha;
  Preview();
}

void WatermarkModel::SetQuality(std::int16_t quality) {
  quality_ = quality;
  Preview();
}

void WatermarkModel::BrowseFont() try {
  if (ports_.dialogs.ShowFontDialog(workingFont_)) Preview();
} catch (const env::RuntimeFailure& failure) {
  Tell(failure);
}

void WatermarkModel::Preview() {
  if (!dialog_.IsOpen()) return;
  const image::PictureSize size = box_.SizeInPixels();
  const auto picture = image::Resample(dialog_.Source(), size.height, size.width);
  if (picture == nullptr) return;
  if (core::IsOn(settings_.checkUseWatermark)) DrawWatermark(*picture);
  if (dialog_.Compress(*picture, quality_, *picture)) {
    box_.PaintPicture(*picture);
  } else {
    dialog_.CloseWithFailure(tempFolder_);
  }
}

void WatermarkModel::DrawWatermark(image::cDIBSection& picture) const try {
  const image::WatermarkSettings working = WorkingSettings();
  // On a high-resolution screen the sample has more pixels than on a web page, so the text is larger in proportion.
  image::LogFont font =
      image::MakeWatermarkFont(working, env::ToInt32(ports_.screen.PixelsPerInch() * box_.PixelRatio()));
  image::DrawWatermarkText(picture, font, working.textWatermark, working.comboTextPlacement, working.Color,
                           static_cast<std::uint8_t>(working.sliderAlpha), ports_.texts);
} catch (const env::RuntimeFailure& failure) {
  Tell(failure);
}

void WatermarkModel::Tell(const env::RuntimeFailure& failure) const {
  const bool tooLarge =
      failure.Number() == static_cast<std::int32_t>(env::FailureKind::Overflow);  // thousands of letters
  samplePorts_.boxes.Critical(tooLarge ? "Invalid Value" : "Watermark", failure.Description());
}

image::WatermarkSettings WatermarkModel::WorkingSettings() const {
  image::WatermarkSettings working = settings_;
  SetFont(working, workingFont_);
  working.comboTextPlacement = workingPlacement_;
  return working;
}

std::string WatermarkModel::FontSummary() const {
  std::string summary = workingFont_.Name + ", " + std::to_string(workingFont_.Size) + " points";
  if (IsBold(workingFont_.Weight)) summary += ", bold";
  if (workingFont_.Italic) summary += ", italic";
  if (workingFont_.Underline) summary += ", underlined";
  if (workingFont_.Strikeout) summary += ", struck out";
  return summary;
}

void WatermarkModel::Apply() {
  if (!dialog_.IsOpen()) return;
  settings_ = WorkingSettings();
  dialog_.Close(false);
}

}  // namespace vantorium::ui
