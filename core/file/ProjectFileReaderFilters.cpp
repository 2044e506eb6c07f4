#include "core/file/ProjectFileReaderSections.h"
#include "core/file/ProjectFileReaderValues.h"
#include "env/Numbers.h"
#include "env/Text.h"

namespace vantorium::core {
namespace {

/// A copy of a record of the settings to read fields into. The destructor writes it back to the settings, even if
/// reading failed halfway.
template <typename Record>
class RecordEdit {
 public:
  RecordEdit(ProjectEditor& editor, Record GalleryProject::*field)
      : value(editor.Project().*field), editor_(editor), field_(field) {}
  ~RecordEdit() { editor_.Set(field_, std::move(value)); }
  RecordEdit(const RecordEdit&) = delete;
  RecordEdit& operator=(const RecordEdit&) = delete;

  Record value;

 private:
  ProjectEditor& editor_;
  Record GalleryProject::*field_;
};

void ReadNumberInto(std::int16_t& number, pugi::xml_node element, const char* attribute) {
  if (const auto value = AttributeOf(element, attribute)) number = env::ParseInt16(*value);
}

void ReadTextInto(std::string& text, pugi::xml_node element, const char* attribute) {
  if (const auto value = AttributeOf(element, attribute)) text = *value;
}

void ReadBooleanInto(bool& flag, pugi::xml_node element, const char* attribute) {
  if (const auto value = AttributeOf(element, attribute)) flag = env::ParseInt16(*value) != 0;
}

void ReadFont(image::WatermarkSettings& watermark, pugi::xml_node font) {
  ReadTextInto(watermark.FontName, font, "FACE");
  ReadNumberInto(watermark.FontSize, font, "HEIGHT");
  ReadNumberInto(watermark.FontWeight, font, "WEIGHT");
  ReadBooleanInto(watermark.FontItalic, font, "ITALIC");
  ReadBooleanInto(watermark.FontUnderline, font, "UNDERLINE");
  ReadBooleanInto(watermark.FontStrikeout, font, "STRIKEOUT");
  if (const auto color = AttributeOf(font, "COLOR")) watermark.Color = HexToColor(std::string(*color));
}

void ReadWatermark(image::WatermarkSettings& watermark, pugi::xml_node filter) {
  watermark.checkUseWatermark = kOn;
  ReadTextInto(watermark.textWatermark, filter, "CAPTION");
  ReadNumberInto(watermark.sliderAlpha, filter, "ALPHA");
  const auto place = IndexOfWord(kAutoPositionWords, AttributeOf(filter, "AUTOPOSITION").value_or(""));
  if (place) watermark.comboTextPlacement = *place;
  if (const pugi::xml_node font = filter.child("FONT")) ReadFont(watermark, font);
}

void ReadFilter(image::ImageFilterSettings& filters, pugi::xml_node filter, std::string_view type) {
  if (env::EqualsIgnoringCase(type, kGrayscaleWord)) {
    filters.checkGrayscale = kOn;
  } else if (env::EqualsIgnoringCase(type, kNoiseWord)) {
    filters.checkNoise = kOn;
    ReadNumberInto(filters.checkNoiseRandom, filter, "RANDOM");
    ReadNumberInto(filters.sliderNoise, filter, "VALUE");
  } else if (env::EqualsIgnoringCase(type, kBrightnessWord)) {
    filters.checkBrightness = kOn;
    ReadNumberInto(filters.sliderBrightness, filter, "VALUE");
  } else if (env::EqualsIgnoringCase(type, kFadeWord)) {
    filters.checkFade = kOn;
    ReadNumberInto(filters.sliderFade, filter, "VALUE");
  } else if (env::EqualsIgnoringCase(type, kQualityWord)) {
    ReadNumberInto(filters.sliderQuality, filter, "VALUE");
  }
}

}  // namespace

void ReadFilters(pugi::xml_node modify, ProjectEditor& editor, const TargetFields& target) {
  RecordEdit filterEdit(editor, target.filters);
  RecordEdit watermarkEdit(editor, target.watermark);
  for (auto node = NextElement(modify, modify, "FILTER"); node; node = NextElement(node, modify, "FILTER")) {
    const std::string_view type = AttributeOf(node, "TYPE").value_or("");
    if (env::EqualsIgnoringCase(type, kWatermarkWord)) {
      ReadWatermark(watermarkEdit.value, node);
    } else {
      ReadFilter(filterEdit.value, node, type);
    }
  }
}

}  // namespace vantorium::core
