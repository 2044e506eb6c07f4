#include "core/CaseFolding.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>

namespace vantorium {

std::string FoldCase(std::string_view text) {
  std::string folded;
  icu::StringByteSink<std::string> sink(&folded, static_cast<std::int32_t>(text.size()));
  UErrorCode status = U_ZERO_ERROR;
  icu::CaseMap::utf8Fold(0, icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())), sink, nullptr,
                         status);
  return U_SUCCESS(status) ? folded : std::string(text);
}

}  // namespace vantorium
