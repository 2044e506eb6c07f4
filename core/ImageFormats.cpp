#include "core/ImageFormats.h"

#include "env/Text.h"

namespace vantorium::core {

bool IsSupportedImageExtension(std::string_view extension) {
  const std::string lower = env::AsciiLower(extension);
  return lower == ".jpg" || lower == ".jpeg" || lower == ".jfif";
}

std::string ImageFileFilter() {
  return "All supported Formats|*.jpg;*.jpeg;*.jfif|"
         "JPEG Images (*.jpg, *.jpeg)|*.jpg;*.jpeg|"
         "JFIF Images (*.jfif)|*.jfif";
}

}  // namespace vantorium::core
