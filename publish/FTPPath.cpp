#include "publish/FTPPath.h"

#include "env/PathText.h"

#include <algorithm>

namespace vantorium {

std::string FTPGetFileName(std::string_view path) {
  return WithSlashes(GetFileName(path));
}

std::string FTPGetFilePath(std::string_view path) {
  return WithSlashes(GetFilePath(path));
}

std::string RelativeToSession(std::string_view path) {
  std::string relative = WithSlashes(path);
  relative.erase(0, std::min(relative.find_first_not_of('/'), relative.size()));
  return relative;
}

}  // namespace vantorium
