#pragma once

#include <optional>
#include <string>

namespace vantorium::core {

/// Converts the bytes of an XML document to UTF-8 without a byte order mark. The encoding is that of the byte order
/// mark, else of the XML declaration, else UTF-8. Returns nullopt if the encoding is unknown or the bytes are not valid
/// in it; does not validate UTF-8 itself, which is left to the reader of the text. At most 512 MiB.
[[nodiscard]] std::optional<std::string> DecodeXml(std::string bytes);

}  // namespace vantorium::core
