#pragma once

#include <cstdint>
#include <string>

namespace vantorium::ui {

// Texts that a window shows about the image list.

/// "12 Image(s)"
[[nodiscard]] std::string ImageCountText(std::int32_t imageCount);

/// "12 Images on 2 Pages"
[[nodiscard]] std::string PageCountText(std::int32_t imageCount, std::int32_t pageCount);

/// "(800x600, 93KB)": pixels, and the file's size in readable form.
[[nodiscard]] std::string ImageSizeText(std::int32_t width, std::int32_t height, std::uint64_t fileSize);

}  // namespace vantorium::ui
