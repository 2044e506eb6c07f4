#include "core/file/ProjectFileElements.h"

#include "core/file/XmlText.h"

namespace vantorium::core {

void PutAttribute(pugi::xml_node element, const char* name, std::string_view value) {
  element.append_attribute(name).set_value(ToXmlText(value).c_str());
}

void PutAttribute(pugi::xml_node element, const char* name, std::int64_t value) {
  PutAttribute(element, name, std::string_view(std::to_string(value)));
}

void PutAttribute(pugi::xml_node element, const char* name, FileWords words, std::int16_t index) {
  const std::string_view word = WordOf(words, index);
  if (!word.empty()) PutAttribute(element, name, word);
}

// pugixml splits the CDATA section inside a "]]>" when it writes the text.
void PutPlainAttributes(pugi::xml_node element, const GalleryProject& project, std::span<const PlainAttribute> rows) {
  for (const auto& [attribute, field, words] : rows) {
    if (const auto* text = std::get_if<std::string GalleryProject::*>(&field)) {
      PutAttribute(element, attribute, project.**text);
    } else if (const Choice number = project.*std::get<Choice GalleryProject::*>(field); words.empty()) {
      PutAttribute(element, attribute, number);
    } else {
      PutAttribute(element, attribute, words, number);
    }
  }
}

void PutText(pugi::xml_node element, std::string_view text) {
  element.append_child(pugi::node_cdata).set_value(ToXmlText(text).c_str());
}

pugi::xml_node PutTextElement(pugi::xml_node parent, const char* name, std::string_view text) {
  const pugi::xml_node element = parent.append_child(name);
  PutText(element, text);
  return element;
}

void PutTextElementUnlessEmpty(pugi::xml_node parent, const char* name, std::string_view text) {
  if (!text.empty()) PutTextElement(parent, name, text);
}

}  // namespace vantorium::core
