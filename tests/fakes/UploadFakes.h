#pragma once

#include "env/RuntimeFailure.h"
#include "publish/CancelPoll.h"
#include "publish/FTPUploads.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantorium::fakes {

/// Records the calls. All succeed, except those for the paths `refused` and `broken`.
class RecordingUploads : public publish::FTPUploads {
 public:
  [[nodiscard]] bool FTPCreateDirectoryPath(const std::string& path) override { return Answer("make " + path, path); }
  [[nodiscard]] bool FTPCopyFile(const std::string& localPath, const std::string& remotePath, bool overwrite) override {
    return Answer("copy " + localPath + " to " + remotePath + (overwrite ? "" : " unless there"), remotePath);
  }

  std::vector<std::string> calls;
  std::string refused;  ///< remote path for which the calls return false
  std::string broken;   ///< remote path for which the calls throw RuntimeFailure
  std::function<void()> onCall;

 private:
  bool Answer(const std::string& call, const std::string& path) {
    calls.push_back(call);
    if (onCall) onCall();
    if (!broken.empty() && path == broken) throw env::RuntimeFailure(env::FailureKind::DivisionByZero);
    return refused.empty() || path != refused;
  }
};

/// Counts the polls. Reports a cancel from poll `cancelAtPoll` on, if not 0, or while `cancelled` is set.
class ScriptedCancel : public publish::CancelPoll {
 public:
  [[nodiscard]] bool CheckForCancel(publish::ProgressWindow& progress) override {
    ++polls;
    if (onPoll) onPoll(progress);
    return cancelled || (cancelAtPoll > 0 && polls >= cancelAtPoll);
  }

  int polls = 0;
  int cancelAtPoll = 0;
  bool cancelled = false;
  std::function<void(publish::ProgressWindow&)> onPoll;
};

}  // namespace vantorium::fakes
