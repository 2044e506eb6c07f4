#pragma once

#include <filesystem>

namespace vantorium::fakes {

/// The project's root folder at build time.
[[nodiscard]] std::filesystem::path SourceFolder();

}  // namespace vantorium::fakes
