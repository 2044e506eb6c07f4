#include "ui/model/main/ImageListTexts.h"

#include "env/mFileFunctions.h"

#include <fmt/format.h>

namespace vantorium::ui {

std::string ImageCountText(std::int32_t imageCount) {
  return fmt::format("{} Image(s)", imageCount);
}

std::string PageCountText(std::int32_t imageCount, std::int32_t pageCount) {
  return fmt::format("{} Images on {} Pages", imageCount, pageCount);
}

std::string ImageSizeText(std::int32_t width, std::int32_t height, std::uint64_t fileSize) {
  return fmt::format("({}x{}, {})", width, height, env::FileSizeText(fileSize));
}

}  // namespace vantorium::ui
