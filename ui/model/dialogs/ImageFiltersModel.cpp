#include "ui/model/dialogs/ImageFiltersModel.h"

#include "core/Choices.h"
#include "image/Filters.h"
#include "image/Resample.h"

#include <algorithm>

namespace vantorium::ui {
namespace {

void Clamp(std::int16_t& value, std::int16_t low, std::int16_t high) {
  value = std::clamp(value, low, high);
}

image::ImageFilterSettings WithinSliders(image::ImageFilterSettings settings) {
  Clamp(settings.sliderBrightness, -100, 100);
  Clamp(settings.sliderFade, 0, 255);
  Clamp(settings.sliderNoise, 0, 100);
  Clamp(settings.sliderQuality, 1, 100);
  return settings;
}

}  // namespace

ImageFiltersModel::ImageFiltersModel(const image::ImageFilterSettings& settings, const SampleSources& sources,
                                     const SamplePorts& ports, SampleBox& box)
    : settings_(WithinSliders(settings)), box_(box), dialog_(sources, ports, box) {}

void ImageFiltersModel::Open() {
  if (!dialog_.Open()) return;
  settingsChanged_ = true;
  Preview();
}

void ImageFiltersModel::Set(std::int16_t image::ImageFilterSettings::*field, std::int16_t value) {
  settings_.*field = value;
  settingsChanged_ = true;
}

void ImageFiltersModel::Preview() {
  if (!dialog_.IsOpen()) return;
  box_.Clear();
  if (settingsChanged_ && !dialog_.Compress(dialog_.Source(), settings_.sliderQuality, compressed_)) {
    dialog_.CloseWithFailure(dialog_.TempFile());
    return;
  }
  settingsChanged_ = !settingsChanged_;
  const image::PictureSize size = box_.SizeInPixels();
  const auto picture = image::Resample(compressed_, size.height, size.width);
  if (picture == nullptr) return;
  Filter(*picture);
  box_.PaintPicture(*picture);
}

void ImageFiltersModel::Filter(image::cDIBSection& picture) {
  if (core::IsOn(settings_.checkNoise))
    image::AddNoise(picture, settings_.sliderNoise, core::IsOn(settings_.checkNoiseRandom), noise_);
  if (core::IsOn(settings_.checkFade)) image::Fade(picture, settings_.sliderFade);
  if (core::IsOn(settings_.checkBrightness)) image::Lighten(picture, settings_.sliderBrightness);
  if (core::IsOn(settings_.checkGrayscale)) image::GrayScale(picture);
}

void ImageFiltersModel::Apply() {
  if (!dialog_.IsOpen()) return;
  if (settings_.sliderNoise == 0) settings_.checkNoise = core::kOff;
  if (settings_.sliderBrightness == 0) settings_.checkBrightness = core::kOff;
  if (settings_.sliderFade == 255) settings_.checkFade = core::kOff;
  dialog_.Close(false);
}

}  // namespace vantorium::ui
