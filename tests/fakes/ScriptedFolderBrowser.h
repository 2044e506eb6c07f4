#pragma once

#include "ui/model/files/FileBrowser.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace vantorium::fakes {

/// Chooses the folders of its script, in order. An empty entry is Cancel, and so is every choice after the end.
class ScriptedFolderBrowser : public ui::FolderBrowser {
 public:
  [[nodiscard]] std::optional<std::string> BrowseForFolder(const std::string& title,
                                                           const std::string& initialFolder) override {
    asked.push_back(title + ": " + initialFolder);
    if (answers.empty()) return std::nullopt;
    const std::optional<std::string> answer = answers.front();
    answers.pop_front();
    return answer;
  }

  std::vector<std::string> asked;  ///< title and first folder, each time
  std::deque<std::optional<std::string>> answers;
};

}  // namespace vantorium::fakes
