#include "ui/model/dialogs/ImageFiltersModel.h"

#include "core/Choices.h"
#include "image/Filters.h"
#include "image/Resample.h"

#include <algorithm>

namespace vantorium {
namespace {

void Clamp(std::int16_t& value, std::int16_t low, std::int16_t high) {
  value = std::clamp(value, low, high);
}

ImageFilterSettings WithinSliders(ImageFilterSettings settings) {
  Clamp(settings.sliderBrightness, -100, 100);
  Clamp(settings.sliderFade, 0, 255);
  Clamp(settings.sliderNoise, 0, 100);
  Clamp(settings.sliderQuality, 1, 100);
  return settings;
}

}  // namespace

ImageFiltersModel::ImageFiltersModel(const ImageFilterSettings& settings, const SampleSources& sources,
                                     const SamplePorts& ports, SampleBox& box)
    : settings_(WithinSliders(settings)), box_(box), dialog_(sources, ports, box) {}

void ImageFiltersModel::Open() {
  if (!dialog_.Open()) return;
  settingsChanged_ = true;
  Preview();
}

void ImageFiltersModel::Set(std::int16_t ImageFilterSettings::*field, std::int16_t value) {
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
  const PictureSize size = box_.SizeInPixels();
  const auto picture = Resample(compressed_, size.height, size.width);
  if (picture == nullptr) return;
  Filter(*picture);
  box_.PaintPicture(*picture);
}

void ImageFiltersModel::Filter(cDIBSection& picture) {
  if (IsOn(settings_.checkNoise)) AddNoise(picture, settings_.sliderNoise, IsOn(settings_.checkNoiseRandom), noise_);
  if (IsOn(settings_.checkFade)) Fade(picture, settings_.sliderFade);
  if (IsOn(settings_.checkBrightness)) Lighten(picture, settings_.sliderBrightness);
  if (IsOn(settings_.checkGrayscale)) GrayScale(picture);
}

void ImageFiltersModel::Apply() {
  if (!dialog_.IsOpen()) return;
  if (settings_.sliderNoise == 0) settings_.checkNoise = kOff;
  if (settings_.sliderBrightness == 0) settings_.checkBrightness = kOff;
  if (settings_.sliderFade == 255) settings_.checkFade = kOff;
  dialog_.Close(false);
}

}  // namespace vantorium
