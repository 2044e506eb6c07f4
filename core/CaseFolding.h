#pragma once

#include <string>
#include <string_view>

namespace vantorium::core {

/// Returns `text` (UTF-8) with its case folded by Unicode full case folding: texts that differ only in case give the
/// same result, as do "Straße" and "STRASSE". Bytes that are not UTF-8 are kept.
[[nodiscard]] std::string FoldCase(std::string_view text);

/// Whether the first character of `text` (UTF-8) is a letter or a decimal digit of any script.
[[nodiscard]] bool BeginsWithLetterOrDigit(std::string_view text);

}  // namespace vantorium::core
