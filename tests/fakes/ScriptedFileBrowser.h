#pragma once

#include "ui/model/files/FileBrowser.h"

#include <vector>

namespace vantorium::fakes {

/// Returns `answer` each time.
class ScriptedFileBrowser : public FileBrowser {
 public:
  FileDialogResult DisplayFileDialog(const FileDialogRequest& request) override {
    requests.push_back(request);
    return answer;
  }

  std::vector<FileDialogRequest> requests;
  FileDialogResult answer;
};

}  // namespace vantorium::fakes
