#include "core/file/ProjectFileElements.h"

namespace vantorium::core {
namespace {

pugi::xml_node PutFilter(pugi::xml_node modify, std::string_view type) {
  pugi::xml_node filter = modify.append_child("FILTER");
  PutAttribute(filter, "TYPE", type);
  return filter;
}

void PutFilterWithValue(pugi::xml_node modify, std::string_view type, std::int16_t value) {
  PutAttribute(PutFilter(modify, type), "VALUE", value);
}

/// The four filters; the order of the watermark and the quality differs between images and thumbnails.
void PutFilters(pugi::xml_node modify, const image::ImageFilterSettings& filters) {
  if (IsOn(filters.checkGrayscale)) PutFilter(modify, kGrayscaleWord);
  if (IsOn(filters.checkNoise)) {
    pugi::xml_node noise = PutFilter(modify, kNoiseWord);
    PutAttribute(noise, "RANDOM", filters.checkNoiseRandom);
    PutAttribute(noise, "VALUE", filters.sliderNoise);
  }
  if (IsOn(filters.checkBrightness)) PutFilterWithValue(modify, kBrightnessWord, filters.sliderBrightness);
  if (IsOn(filters.checkFade)) PutFilterWithValue(modify, kFadeWord, filters.sliderFade);
}

void PutWatermark(pugi::xml_node modify, const image::WatermarkSettings& watermark) {
  pugi::xml_node filter = PutFilter(modify, kWatermarkWord);
  PutAttribute(filter, "CAPTION", watermark.textWatermark);
  PutAttribute(filter, "ALPHA", watermark.sliderAlpha);
  PutAttribute(filter, "AUTOPOSITION", kAutoPositionWords, watermark.comboTextPlacement);
  pugi::xml_node font = filter.append_child("FONT");
  PutAttribute(font, "FACE", watermark.FontName);
  PutAttribute(font, "HEIGHT", watermark.FontSize);
  PutAttribute(font, "WEIGHT", watermark.FontWeight);
  PutAttribute(font, "ITALIC", FlagOf(watermark.FontItalic));
  PutAttribute(font, "UNDERLINE", FlagOf(watermark.FontUnderline));
  PutAttribute(font, "STRIKEOUT", FlagOf(watermark.FontUnderline));  // the underline again: existing files have it so
  PutAttribute(font, "COLOR", ColorToHex(watermark.Color));
}

}  // namespace

void PutImageFilters(pugi::xml_node modify, const GalleryProject& project) {
  const bool watermark = IsOn(project.ImageWatermark.checkUseWatermark);
  PutFilters(modify, project.ImageFilters);
  if (watermark) PutWatermark(modify, project.ImageWatermark);
  if (watermark || project.ImageFilters.AnyFilter()) {
    PutFilterWithValue(modify, kQualityWord, project.ImageFilters.sliderQuality);
  }
}

// The switch of the images' watermark also controls that of the thumbnails: existing files have it so.
void PutThumbnailFilters(pugi::xml_node modify, const GalleryProject& project) {
  PutFilters(modify, project.ThumbnailFilters);
  if (project.ThumbnailFilters.AnyFilter()) {
    PutFilterWithValue(modify, kQualityWord, project.ThumbnailFilters.sliderQuality);
  }
  if (IsOn(project.ImageWatermark.checkUseWatermark)) PutWatermark(modify, project.ThumbnailWatermark);
}

}  // namespace vantorium::core
