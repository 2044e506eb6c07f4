#pragma once

#include <string>
#include <string_view>

namespace vantorium {

/// Whether an image file may have that extension (with its dot): ".jpg", ".jpeg" and ".jfif" in any case.
[[nodiscard]] bool IsSupportedImageExtension(std::string_view extension);

/// The filter of the dialogs that choose images: descriptions and patterns in pairs, separated by "|".
[[nodiscard]] std::string ImageFileFilter();

}  // namespace vantorium
