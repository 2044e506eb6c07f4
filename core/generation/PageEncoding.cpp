#include "core/generation/PageEncoding.h"

#include <algorithm>

namespace vantorium::generation {

std::string EncodePage(std::string page) {
  const bool ascii =
      std::none_of(page.begin(), page.end(), [](char byte) { return static_cast<unsigned char>(byte) > 0x7F; });
  if (!ascii) page.insert(0, kUtf8ByteOrderMark);
  return page;
}

}  // namespace vantorium::generation
