#pragma once

#include <cstddef>
#include <string_view>

namespace vantorium {

/// The most bytes of an XML file that the program reads or writes.
inline constexpr std::size_t kLargestXmlFile = 512 << 20;

/// How far a document may go that the program takes. Its own files stay far below; a file beyond is damaged or means
/// harm, and would cost more memory or time than a user should lose to it.
struct XmlLimits {
  std::size_t depth = 64;                ///< elements inside each other
  std::size_t pieces = 16'000'000;       ///< tags, texts, sections and comments of the document
  std::size_t attributeBytes = 1 << 24;  ///< of one attribute's value, as written
};

/// Whether `text` (UTF-8 without a byte order mark) is one well-formed XML 1.0 document within the limits. Stricter
/// than XML in one point: a document type declaration with declarations of its own is refused, so no entity but the
/// five of XML is known and none is ever expanded. A single pass; needs memory for the open elements only.
[[nodiscard]] bool IsWellFormedXml(std::string_view text, const XmlLimits& limits = {});

}  // namespace vantorium
