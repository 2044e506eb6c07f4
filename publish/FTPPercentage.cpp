#include "publish/FTPPercentage.h"

#include "env/Numbers.h"

#include <limits>

namespace vantorium::publish {

std::optional<std::int16_t> FTPPercentage(std::int32_t sent, std::int32_t length) {
  if (sent > std::numeric_limits<std::int32_t>::max() / 100) return std::nullopt;
  return env::ToInt16(env::Divide(sent * 100, length));
}

}  // namespace vantorium::publish
