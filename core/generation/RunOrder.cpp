#include "core/generation/RunOrder.h"

#include "env/PathText.h"
#include "publish/FTPPath.h"

namespace vantorium::generation {
namespace {

/// Returns a remote folder to which a name can be appended.
std::string WithTrailingSeparator(const std::string& folder) {
  const bool needsOne = !folder.empty() && !folder.ends_with('\\') && !folder.ends_with('/');
  return needsOne ? folder + '/' : folder;
}

}  // namespace

void SetIndexFile(RunOrder& order, const std::string& path) {
  order.IndexFileName = env::GetFileName(path);
  // GetFilePath would drop a leading separator.
  order.OutputFolder = path.substr(0, path.size() - order.IndexFileName.size());
}

void SetRemoteFolder(RunOrder& order, const std::string& folder) {
  order.RemoteFolder = publish::FTPGetFilePath(WithTrailingSeparator(folder));
}

void SetRemoteIndexFile(RunOrder& order, const std::string& folder, const std::string& file) {
  const std::string remote = WithTrailingSeparator(folder) + file;
  order.RemoteFolder = publish::FTPGetFilePath(remote);
  order.RemoteIndexFileName = publish::FTPGetFileName(remote);
}

}  // namespace vantorium::generation
