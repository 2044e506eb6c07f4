#pragma once

#include "core/ProjectFileDialog.h"
#include "ui/model/files/FileBrowser.h"

namespace vantorium::ui {

/// Shows the dialog for project files with the program's file dialog.
class ProjectFileDialogWindow : public core::ProjectFileDialog {
 public:
  explicit ProjectFileDialogWindow(FileBrowser& browser) : browser_(browser) {}

  [[nodiscard]] std::string Choose(const Request& request) override {
    return browser_
        .DisplayFileDialog({.open = request.purpose == Purpose::Open,
                            .title = request.title,
                            .initialFolder = request.folder,
                            .fileName = request.fileName,
                            .filter = request.filter,
                            .defaultExtension = request.defaultExtension})
        .result;
  }

 private:
  FileBrowser& browser_;
};

}  // namespace vantorium::ui
