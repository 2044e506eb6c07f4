#include "ui/model/files/ImageSizeLabel.h"

#include "image/Photograph.h"
#include "ui/model/main/ImageListTexts.h"

namespace vantorium::ui {

std::string ImageSizeLabel(const std::optional<std::filesystem::path>& file, bool upright) {
  std::int32_t width = 0;
  std::int32_t height = 0;
  if (!file || !image::ReadPhotographSize(*file, upright, width, height)) return {};
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(*file, error);
  return error ? std::string() : ImageSizeText(width, height, size);
}

}  // namespace vantorium::ui
