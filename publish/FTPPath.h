#pragma once

#include <string>
#include <string_view>

namespace vantorium {

/// The last element of a path, as GetFileName, in forward slashes.
[[nodiscard]] std::string FTPGetFileName(std::string_view path);

/// Everything through the last separator, as GetFilePath, in forward slashes.
[[nodiscard]] std::string FTPGetFilePath(std::string_view path);

/// A path in forward slashes without any in front, which would lead from the folder that the session stands in to the
/// server's root.
[[nodiscard]] std::string RelativeToSession(std::string_view path);

}  // namespace vantorium
