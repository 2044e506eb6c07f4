#pragma once

#include "core/ProjectEditor.h"
#include "core/file/ProjectFileFields.h"
#include "core/file/ProjectFileNames.h"
#include "core/file/XmlNode.h"

#include <span>
#include <string>
#include <string_view>

namespace vantorium::core {

// Convert attributes and texts of an element to settings. An absent attribute leaves the setting unchanged; an empty
// one is a value like any other. Throws RuntimeFailure TypeMismatch for text that is not a number, and Overflow for a
// Flag or a Choice that does not fit.

using TextField = std::string GalleryProject::*;
using NumberField = std::int16_t GalleryProject::*;

/// Returns the text of an element with CR LF line ends, or an empty text if the element is absent.
[[nodiscard]] std::string MultilineText(pugi::xml_node element);

/// Returns the attribute's text, or an empty one if it is absent.
[[nodiscard]] std::string TextOrEmpty(pugi::xml_node element, const char* attribute);

void ReadText(ProjectEditor& editor, pugi::xml_node element, const char* attribute, TextField field);
void ReadTextOr(ProjectEditor& editor, pugi::xml_node element, const char* attribute, TextField field,
                std::string_view absent);
/// Returns the decimal text of a whole number, which may be outside all bounds: an edit then clamps it.
[[nodiscard]] std::string WholeNumber(std::string_view text);
/// Reads a whole number and keeps it as decimal text.
void ReadDigits(ProjectEditor& editor, pugi::xml_node element, const char* attribute, TextField field);
void ReadNumber(ProjectEditor& editor, pugi::xml_node element, const char* attribute, NumberField field);
/// On if the attribute is the number 1, else off.
void ReadSwitch(ProjectEditor& editor, pugi::xml_node element, const char* attribute, NumberField field);
/// Reads one attribute for each row.
void ReadPlainAttributes(ProjectEditor& editor, pugi::xml_node element, std::span<const PlainAttribute> rows);
/// A word that is not in the list leaves the setting unchanged.
void ReadWord(ProjectEditor& editor, pugi::xml_node element, const char* attribute, FileWords words, NumberField field);
void ReadAlignment(ProjectEditor& editor, pugi::xml_node element, NumberField field);
/// If present, the color also turns on the switch that enables it.
void ReadColor(ProjectEditor& editor, pugi::xml_node element, const char* attribute, Color GalleryProject::*field,
               NumberField use);
/// Reads the texts of children; an absent child empties its field.
void ReadChildTexts(ProjectEditor& editor, pugi::xml_node parent, const CodeFields& fields,
                    std::span<const TextElement> texts);

/// Whether the text reads as the number 1.
[[nodiscard]] bool IsNumberOne(std::string_view text);

}  // namespace vantorium::core
