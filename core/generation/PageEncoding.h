#pragma once

#include <string>
#include <string_view>

namespace vantorium {

inline constexpr std::string_view kUtf8ByteOrderMark = "\xEF\xBB\xBF";

/// The bytes of a page's file: pure ASCII as it stands, any other text as UTF-8 with the byte order mark in front, so
/// that a browser needs no declaration of the encoding. `page` is UTF-8.
[[nodiscard]] std::string EncodePage(std::string page);

}  // namespace vantorium
