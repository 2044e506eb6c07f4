#pragma once

#include <string>
#include <string_view>

namespace vantorium::core {

/// Returns whether image files may have this extension (with its dot): ".jpg", ".jpeg" and ".jfif" in any case.
[[nodiscard]] bool IsSupportedImageExtension(std::string_view extension);

/// Returns the filter for dialogs that choose images: pairs of description and pattern, separated by "|".
[[nodiscard]] std::string ImageFileFilter();

}  // namespace vantorium::core
