// Storing files.
#include "env/PathText.h"
#include "env/RuntimeFailure.h"
#include "publish/FTPPercentage.h"
#include "publish/LocalFile.h"
#include "publish/mFTP.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace vantorium::publish {
namespace {

constexpr std::int32_t kBlockSize = 4096;

}  // namespace

bool mFTP::FTPCopyFile(const std::string& localPath, const std::string& remotePath, bool overwrite) {
  FTPLog("Copying file " + paths_.Surface(localPath) + " to " + remotePath + "\r\n");
  const std::string target = env::WithSlashes(remotePath);
  if (FTPStoreFile(localPath, target, overwrite)) return true;
  FTPDeleteFile(target);
  return false;
}

bool mFTP::FTPStoreFile(const std::string& localPath, const std::string& remotePath, bool overwrite) {
  ShowPercentage(0);
  hasConfirmed_ = false;
  if (localPath.empty() || remotePath.empty()) return false;
  std::int32_t length = 0;
  try {
    length = LengthOfFile(paths_.ToNative(localPath));
  } catch (const env::RuntimeFailure& failure) {
    FTPShowError(failure.Description());
    return false;
  }
  if (!overwrite && FTPFileExists(remotePath)) return true;
  return OpenDataConnection(remotePath) && SendFile(localPath, length);
}

bool mFTP::SendFile(const std::string& localPath, std::int32_t length) {
  std::optional<LocalFile> file;
  try {
    file.emplace(paths_.ToNative(localPath).value_or(""));
  } catch (const env::RuntimeFailure& failure) {
    sockData_->Close();
    FTPShowError(failure.Description());
    return false;
  }
  const bool sent = SendBlocks(*file, length);
  ShowPercentage(100);
  file.reset();
  return EndData(sent);
}

bool mFTP::SendBlocks(LocalFile& file, std::int32_t length) {
  std::vector<char> buffer(static_cast<std::size_t>(std::clamp(length, 0, kBlockSize)));
  std::int32_t remaining = length;
  do {
    if (const auto percentage = FTPPercentage(length - remaining, length)) ShowPercentage(*percentage);
    loop_.Turn();
    // A cancel may have been confirmed while there was no call on the data connection to abort.
    if (cancel_.CancelRequested()) return false;
    const std::int32_t size = std::min(remaining, kBlockSize);
    const auto block = std::span(buffer).first(static_cast<std::size_t>(size));
    if (!file.Read(block) || sockData_->WriteBytes(block) != block.size()) return false;
    remaining -= size;
  } while (remaining > 0);
  return true;
}

}  // namespace vantorium::publish
