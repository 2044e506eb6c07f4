#include "core/generation/SafeNames.h"

#include "env/PathText.h"

#include <string>

namespace vantorium::generation {
bool IsPlainFileName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." && name.find_first_of("/\\") == std::string_view::npos &&
         name.find('\0') == std::string_view::npos && !env::HasDrive(name);
}

bool LeavesFolder(std::string_view relativePath) {
  if (env::HasDrive(relativePath)) return true;
  const std::string path = "/" + env::WithSlashes(relativePath) + "/";
  return path.find("/../") != std::string::npos || path.find('\0') != std::string::npos;
}

}  // namespace vantorium::generation
