#pragma once

#include <string>
#include <string_view>

namespace vantorium {

/// `text` (UTF-8) with its case folded, the full folding of Unicode: texts that differ in case only give the same, and
/// "Straße" the same as "STRASSE". Bytes that are no UTF-8 stay.
[[nodiscard]] std::string FoldCase(std::string_view text);

/// Whether the first character of `text` (UTF-8) is a letter or a decimal digit of any script.
[[nodiscard]] bool BeginsWithLetterOrDigit(std::string_view text);

}  // namespace vantorium
