#pragma once

#include <cstddef>
#include <string_view>

namespace vantorium::core {

/// The size limit in bytes of the XML files that the program reads or writes.
inline constexpr std::size_t kLargestXmlFile = 512 << 20;

/// Limits of the documents that the program accepts. Its own files stay far below; a file beyond them is damaged or
/// malicious, and would cost too much memory or time.
struct XmlLimits {
  std::size_t depth = 64;                ///< nested elements
  std::size_t pieces = 16'000'000;       ///< tags, texts, sections and comments of the document
  std::size_t attributeBytes = 1 << 24;  ///< of one attribute's value, as written
};

/// Returns whether `text` (UTF-8 without a byte order mark) is one well-formed XML 1.0 document within the limits.
/// Stricter than XML in one point: refuses a document type declaration that contains declarations, so only the five
/// predefined entities are known and none is ever expanded. A single pass; needs memory for the open elements only.
[[nodiscard]] bool IsWellFormedXml(std::string_view text, const XmlLimits& limits = {});

}  // namespace vantorium::core
