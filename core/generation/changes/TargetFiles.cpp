#include "core/generation/changes/TargetFiles.h"

#include "env/PathText.h"
#include "publish/FTPPath.h"

namespace vantorium::generation {
namespace {

std::optional<std::filesystem::path> NativeOf(const RunState& run, const std::string& name) {
  return run.files.Paths().ToNative(run.OutputFolder + env::WithBackslashes(name));
}

std::optional<SourceStamp> StampOfName(const RunState& run, const std::string& name) {
  const auto native = NativeOf(run, name);
  return native ? StampOf(*native) : std::nullopt;
}

std::string RemotePath(const RunOrder& order, const std::string& name) {
  return publish::RelativeToSession(order.RemoteFolder + name);
}

}  // namespace

bool LocalFiles::IsAsLeft(const std::string& name, const MadeFile& file) {
  return file.stamp && StampOfName(run_, name) == file.stamp;
}

bool LocalFiles::Look(const std::string& name, MadeFile& file) {
  file.stamp = StampOfName(run_, name);
  if (file.stamp) file.size = static_cast<std::uint64_t>(file.stamp->size);
  return file.stamp.has_value();
}

bool LocalFiles::Remove(const std::string& name) {
  const auto native = NativeOf(run_, name);
  std::error_code error;
  return native && std::filesystem::remove(*native, error);
}

bool ServerFiles::IsAsLeft(const std::string& name, const MadeFile& file) {
  return ftp_.FTPStoredSize(RemotePath(order_, name)) == file.size;
}

bool ServerFiles::Look(const std::string& /*name*/, MadeFile& /*file*/) {
  return ftp_.FTPHasConfirmed();
}

bool ServerFiles::Remove(const std::string& name) {
  return ftp_.FTPDeleteFile(RemotePath(order_, name));
}

}  // namespace vantorium::generation
