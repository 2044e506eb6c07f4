#pragma once

#include <filesystem>

namespace vantorium::fakes {

/// The project's root folder, as the build saw it.
[[nodiscard]] std::filesystem::path SourceFolder();

}  // namespace vantorium::fakes
