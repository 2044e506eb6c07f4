#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <pugixml.hpp>

namespace vantorium::core {

/// An XML file, parsed with pugixml.
class XmlFile {
 public:
  /// Parses the bytes of a file. Returns false if they are not a well-formed XML document; Root is then empty.
  [[nodiscard]] bool Parse(std::string bytes);
  /// Returns the document element. Nodes are valid as long as this object lives.
  [[nodiscard]] pugi::xml_node Root() const { return document_.document_element(); }

 private:
  std::string text_;  // document_ refers to it
  pugi::xml_document document_;
};

// Lookups in a tree. None of them recurses, however deep the tree is.

/// Returns the value of an attribute, which may be empty, or nullopt if the element has no such attribute.
[[nodiscard]] std::optional<std::string_view> AttributeOf(pugi::xml_node element, const char* name);

/// Returns all text inside an element and its descendants, in document order; line ends are LF.
[[nodiscard]] std::string TextOf(pugi::xml_node element);

/// Returns the node that follows `node` in document order inside `top`, empty at the end. Starting at `top`, this
/// visits all descendants.
[[nodiscard]] pugi::xml_node NextInDocument(pugi::xml_node node, pugi::xml_node top);

/// Returns the next element of that name after `node` in document order inside `top`, empty at the end.
[[nodiscard]] pugi::xml_node NextElement(pugi::xml_node node, pugi::xml_node top, std::string_view name);

}  // namespace vantorium::core
