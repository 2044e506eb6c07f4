#pragma once

#include "ui/model/files/FileBrowser.h"

#include <vector>

namespace vantorium::fakes {

/// Returns `answer` each time.
class ScriptedFileBrowser : public ui::FileBrowser {
 public:
  ui::FileDialogResult DisplayFileDialog(const ui::FileDialogRequest& request) override {
    requests.push_back(request);
    return answer;
  }

  std::vector<ui::FileDialogRequest> requests;
  ui::FileDialogResult answer;
};

}  // namespace vantorium::fakes
