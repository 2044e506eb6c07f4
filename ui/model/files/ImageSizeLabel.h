#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace vantorium {

/// What stands below the preview of a file (native): "(800x600, 93KB)". Empty for what is no readable JPEG file.
[[nodiscard]] std::string ImageSizeLabel(const std::optional<std::filesystem::path>& file);

}  // namespace vantorium
