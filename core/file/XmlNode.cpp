#include "core/file/XmlNode.h"

#include "core/file/XmlEncoding.h"
#include "core/file/XmlSyntax.h"

namespace vantorium::core {

bool XmlFile::Parse(std::string bytes) {
  auto text = DecodeXml(std::move(bytes));
  if (!text || !IsWellFormedXml(*text)) return false;
  text_ = std::move(*text);
  // Keeps white space between elements, since it may be the text of an element; nothing reads it elsewhere.
  constexpr unsigned kFlags = pugi::parse_default | pugi::parse_ws_pcdata;
  return static_cast<bool>(document_.load_buffer_inplace(text_.data(), text_.size(), kFlags, pugi::encoding_utf8));
}

std::optional<std::string_view> AttributeOf(pugi::xml_node element, const char* name) {
  const pugi::xml_attribute attribute = element.attribute(name);
  return attribute ? std::optional<std::string_view>(attribute.value()) : std::nullopt;
}

std::string TextOf(pugi::xml_node element) {
  std::string text;
  for (pugi::xml_node node = NextInDocument(element, element); node; node = NextInDocument(node, element)) {
    text += node.value();  // empty for an element
  }
  return text;
}

pugi::xml_node NextInDocument(pugi::xml_node node, pugi::xml_node top) {
  if (node.first_child()) return node.first_child();
  while (node && node != top && !node.next_sibling()) node = node.parent();
  return node == top ? pugi::xml_node() : node.next_sibling();
}

pugi::xml_node NextElement(pugi::xml_node node, pugi::xml_node top, std::string_view name) {
  do {
    node = NextInDocument(node, top);
  } while (node && !(node.type() == pugi::node_element && node.name() == name));
  return node;
}

}  // namespace vantorium::core
