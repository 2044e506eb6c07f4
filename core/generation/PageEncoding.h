#pragma once

#include <string>
#include <string_view>

namespace vantorium::generation {

inline constexpr std::string_view kUtf8ByteOrderMark = "\xEF\xBB\xBF";

/// Returns the bytes of a page's file. `page` is UTF-8. Pure ASCII is unchanged; other text gets a leading byte order
/// mark, so that a browser needs no declaration of the encoding.
[[nodiscard]] std::string EncodePage(std::string page);

}  // namespace vantorium::generation
