#pragma once

#include <string>
#include <string_view>

namespace vantorium::publish {

/// Returns the last element of a path, as GetFileName does, with forward slashes.
[[nodiscard]] std::string FTPGetFileName(std::string_view path);

/// Returns everything through the last separator, as GetFilePath does, with forward slashes.
[[nodiscard]] std::string FTPGetFilePath(std::string_view path);

/// Returns a path with forward slashes and without leading ones, which would lead from the session's current directory
/// to the server's root.
[[nodiscard]] std::string RelativeToSession(std::string_view path);

}  // namespace vantorium::publish
