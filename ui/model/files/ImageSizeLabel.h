#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace vantorium::ui {

/// Returns the text below the preview of a file (native path): "(800x600, 93KB)", with the size of the upright
/// photograph if `upright` is set. Empty if it is not a readable JPEG file.
[[nodiscard]] std::string ImageSizeLabel(const std::optional<std::filesystem::path>& file, bool upright = false);

}  // namespace vantorium::ui
