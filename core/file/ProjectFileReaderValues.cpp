#include "core/file/ProjectFileReaderValues.h"

#include "core/ProjectFields.h"
#include "env/Numbers.h"
#include "env/RuntimeFailure.h"
#include "env/Text.h"

#include <algorithm>
#include <limits>

namespace vantorium::core {

// pugixml has converted every line end to LF.
std::string MultilineText(pugi::xml_node element) {
  return env::ReplaceAll(TextOf(element), "\n", env::kCrLf);
}

std::string TextOrEmpty(pugi::xml_node element, const char* attribute) {
  return std::string(AttributeOf(element, attribute).value_or(""));
}

void ReadText(ProjectEditor& editor, pugi::xml_node element, const char* attribute, TextField field) {
  if (const auto value = AttributeOf(element, attribute)) editor.Set(field, std::string(*value));
}

void ReadTextOr(ProjectEditor& editor, pugi::xml_node element, const char* attribute, TextField field,
                std::string_view absent) {
  editor.Set(field, std::string(AttributeOf(element, attribute).value_or(absent)));
}

std::string WholeNumber(std::string_view text) {
  using Limits = std::numeric_limits<std::int32_t>;
  const auto number = env::ParseNumber(text);
  if (!number) throw env::RuntimeFailure(env::FailureKind::TypeMismatch);
  return std::to_string(env::ToInt32(std::clamp<double>(*number, Limits::min(), Limits::max())));
}

void ReadDigits(ProjectEditor& editor, pugi::xml_node element, const char* attribute, TextField field) {
  if (const auto value = AttributeOf(element, attribute)) editor.Set(field, WholeNumber(*value));
}

void ReadNumber(ProjectEditor& editor, pugi::xml_node element, const char* attribute, NumberField field) {
  if (const auto value = AttributeOf(element, attribute)) editor.Set(field, env::ParseInt16(*value));
}

void ReadSwitch(ProjectEditor& editor, pugi::xml_node element, const char* attribute, NumberField field) {
  if (const auto value = AttributeOf(element, attribute)) editor.Set(field, FlagOf(IsNumberOne(*value)));
}

void ReadWord(ProjectEditor& editor, pugi::xml_node element, const char* attribute, FileWords words,
              NumberField field) {
  if (const auto index = IndexOfWord(words, AttributeOf(element, attribute).value_or(""))) editor.Set(field, *index);
}

void ReadPlainAttributes(ProjectEditor& editor, pugi::xml_node element, std::span<const PlainAttribute> rows) {
  for (const auto& [attribute, field, words] : rows) {
    if (const auto* text = std::get_if<TextField>(&field)) {
      const bool isNumber = FieldOf(*text).kind == FieldKind::Digits;
      (isNumber ? ReadDigits : ReadText)(editor, element, attribute, *text);
    } else if (words.empty()) {
      ReadSwitch(editor, element, attribute, std::get<NumberField>(field));
    } else {
      ReadWord(editor, element, attribute, words, std::get<NumberField>(field));
    }
  }
}

void ReadAlignment(ProjectEditor& editor, pugi::xml_node element, NumberField field) {
  ReadWord(editor, element, "ALIGN", kAlignmentBesideWords, field);
  ReadWord(editor, element, "ALIGN", kAlignmentStackedWords, field);
}

void ReadColor(ProjectEditor& editor, pugi::xml_node element, const char* attribute, Color GalleryProject::*field,
               NumberField use) {
  const auto value = AttributeOf(element, attribute);
  if (!value) return;
  editor.Set(field, HexToColor(std::string(*value)));
  editor.Set(use, kOn);
}

void ReadChildTexts(ProjectEditor& editor, pugi::xml_node parent, const CodeFields& fields,
                    std::span<const TextElement> texts) {
  for (const TextElement& text : texts) editor.Set(fields.*text.text, MultilineText(parent.child(text.element)));
}

bool IsNumberOne(std::string_view text) {
  return env::ParseNumber(text) == 1.0;
}

}  // namespace vantorium::core
