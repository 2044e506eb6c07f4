#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vantorium::core {

/// Returns whether XML 1.0 allows the character: tab, LF, CR and all of Unicode from the space on, except the
/// surrogates, U+FFFE and U+FFFF.
[[nodiscard]] bool IsXmlCharacter(std::int32_t codePoint);

/// Returns whether `text` is UTF-8 and XML allows all of its characters.
[[nodiscard]] bool IsXmlText(std::string_view text);

/// Returns `text` with U+FFFD, the replacement character, in place of what an XML document cannot hold in any form:
/// control characters and bytes that are not UTF-8.
[[nodiscard]] std::string ToXmlText(std::string_view text);

}  // namespace vantorium::core
