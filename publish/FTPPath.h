#pragma once

#include <string>
#include <string_view>

namespace vantorium {

/// The last element of a path, as GetFileName, in forward slashes.
[[nodiscard]] std::string FTPGetFileName(std::string_view path);

/// Everything through the last separator, as GetFilePath, in forward slashes.
[[nodiscard]] std::string FTPGetFilePath(std::string_view path);

}  // namespace vantorium
