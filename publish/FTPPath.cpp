#include "publish/FTPPath.h"

#include "env/PathText.h"

#include <algorithm>

namespace vantorium::publish {

std::string FTPGetFileName(std::string_view path) {
  return env::WithSlashes(env::GetFileName(path));
}

std::string FTPGetFilePath(std::string_view path) {
  return env::WithSlashes(env::GetFilePath(path));
}

std::string RelativeToSession(std::string_view path) {
  std::string relative = env::WithSlashes(path);
  relative.erase(0, std::min(relative.find_first_not_of('/'), relative.size()));
  return relative;
}

}  // namespace vantorium::publish
