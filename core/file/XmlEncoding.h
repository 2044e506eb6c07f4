#pragma once

#include <optional>
#include <string>

namespace vantorium {

/// The bytes of an XML document as UTF-8 without a byte order mark. The encoding is that of the byte order mark, else
/// of the XML declaration, else UTF-8. Nothing when the encoding is unknown or the bytes are not in it; whether UTF-8
/// itself is sound is for the reader of the text to find out. At most 512 MiB.
[[nodiscard]] std::optional<std::string> DecodeXml(std::string bytes);

}  // namespace vantorium
