#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vantorium {

/// Whether XML 1.0 knows the character: tab, LF, CR and all of Unicode from the blank on, without the surrogates,
/// U+FFFE and U+FFFF.
[[nodiscard]] bool IsXmlCharacter(std::int32_t codePoint);

/// Whether `text` is UTF-8 and every character of it may stand in an XML document.
[[nodiscard]] bool IsXmlText(std::string_view text);

/// `text` with U+FFFD, the replacement character, in place of what an XML document can't hold in any form: control
/// characters and bytes that are no UTF-8.
[[nodiscard]] std::string ToXmlText(std::string_view text);

}  // namespace vantorium
