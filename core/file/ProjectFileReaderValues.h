#pragma once

#include "core/ProjectEditor.h"
#include "core/file/ProjectFileFields.h"
#include "core/file/ProjectFileNames.h"
#include "core/file/XmlNode.h"

#include <span>
#include <string>

namespace vantorium {

// From attributes and texts of an element to settings. An absent attribute leaves the setting as it is, an empty one is
// a value like any other. A number that is none is the RuntimeFailure TypeMismatch, a Flag or a Choice that does not
// fit is Overflow.

using TextField = std::string GalleryProject::*;
using NumberField = std::int16_t GalleryProject::*;

/// The text of an element with CR LF at the end of its lines; empty for an absent element.
[[nodiscard]] std::string MultilineText(pugi::xml_node element);

/// The attribute as a text of its own, empty when it is absent.
[[nodiscard]] std::string TextOrEmpty(pugi::xml_node element, const char* attribute);

void ReadText(ProjectEditor& editor, pugi::xml_node element, const char* attribute, TextField field);
void ReadTextOr(ProjectEditor& editor, pugi::xml_node element, const char* attribute, TextField field,
                const char* absent);
/// The decimal text of a whole number, which may be beyond every setting: an edit then makes it the setting's bound.
[[nodiscard]] std::string WholeNumber(std::string_view text);
/// A whole number, kept as its decimal text.
void ReadDigits(ProjectEditor& editor, pugi::xml_node element, const char* attribute, TextField field);
void ReadNumber(ProjectEditor& editor, pugi::xml_node element, const char* attribute, NumberField field);
/// 1 when the attribute is the number 1, else 0.
void ReadSwitch(ProjectEditor& editor, pugi::xml_node element, const char* attribute, NumberField field);
/// A word that the list does not hold leaves the setting as it is.
void ReadWord(ProjectEditor& editor, pugi::xml_node element, const char* attribute, FileWords words, NumberField field);
void ReadAlignment(ProjectEditor& editor, pugi::xml_node element, NumberField field);
/// Present, the color also turns on the switch that puts it to use.
void ReadColor(ProjectEditor& editor, pugi::xml_node element, const char* attribute, Color GalleryProject::*field,
               NumberField use);
/// The texts of children; an absent child empties its field.
void ReadChildTexts(ProjectEditor& editor, pugi::xml_node parent, std::span<const TextElement> texts);

/// Whether the text reads as the number 1.
[[nodiscard]] bool IsNumberOne(std::string_view text);

}  // namespace vantorium
