#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <pugixml.hpp>

namespace vantorium {

/// The document element of an XML file and what belongs to it.
class XmlFile {
 public:
  /// Takes the bytes of a file. False when they are no well-formed XML document; Root is then empty.
  [[nodiscard]] bool Parse(std::string bytes);
  /// The document element. Nodes live as long as this object.
  [[nodiscard]] pugi::xml_node Root() const { return document_.document_element(); }

 private:
  std::string text_;  // the document refers to it
  pugi::xml_document document_;
};

// Look-ups in a tree. None of them recurses, however deep the tree is.

/// The value of an attribute, which may be empty; nothing when the element has no such attribute.
[[nodiscard]] std::optional<std::string_view> AttributeOf(pugi::xml_node element, const char* name);

/// All text inside an element and its descendants, in document order; line ends are LF.
[[nodiscard]] std::string TextOf(pugi::xml_node element);

/// The node that follows `node` in document order below `top`, empty at the end. From `top` itself on, this visits all
/// descendants.
[[nodiscard]] pugi::xml_node NextInDocument(pugi::xml_node node, pugi::xml_node top);

/// The next element of that name behind `node` in document order below `top`, empty at the end.
[[nodiscard]] pugi::xml_node NextElement(pugi::xml_node node, pugi::xml_node top, std::string_view name);

}  // namespace vantorium
