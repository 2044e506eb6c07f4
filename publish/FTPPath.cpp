#include "publish/FTPPath.h"

#include "env/PathText.h"

namespace vantorium {

std::string FTPGetFileName(std::string_view path) {
  return WithSlashes(GetFileName(path));
}

std::string FTPGetFilePath(std::string_view path) {
  return WithSlashes(GetFilePath(path));
}

}  // namespace vantorium
