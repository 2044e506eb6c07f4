#include "publish/FTPPercentage.h"

#include "env/Numbers.h"

#include <limits>

namespace vantorium {

std::optional<std::int16_t> FTPPercentage(std::int32_t sent, std::int32_t length) {
  if (sent > std::numeric_limits<std::int32_t>::max() / 100) return std::nullopt;
  return ToInt16(Divide(sent * 100, length));
}

}  // namespace vantorium
