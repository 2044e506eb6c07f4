#include "core/CaseFolding.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace vantorium::core {

std::string FoldCase(std::string_view text) {
  std::string folded;
  icu::StringByteSink<std::string> sink(&folded, static_cast<std::int32_t>(text.size()));
  UErrorCode status = U_ZERO_ERROR;
  icu::CaseMap::utf8Fold(0, icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())), sink, nullptr,
                         status);
  return U_SUCCESS(status) ? folded : std::string(text);
}

bool BeginsWithLetterOrDigit(std::string_view text) {
  constexpr std::size_t kLongestCharacter = 4;
  const std::string_view first = text.substr(0, kLongestCharacter);
  const auto decoded = icu::UnicodeString::fromUTF8({first.data(), static_cast<std::int32_t>(first.size())});
  return u_isalnum(decoded.char32At(0)) != 0;
}

}  // namespace vantorium::core
