#include "ui/model/dialogs/ProjectDialogs.h"

namespace vantorium::ui {
namespace {

class ScriptedFileBrowser : public FileBrowser {
 public:
  FileDialogResult DisplayFileDialog(const FileDialogRequest& request) override {
    requests.push_back(request);
    return {.result = answer};
  }

  std::string answer;
  std::vector<FileDialogRequest> requests;
};

class ProjectDialog : public testing::Test {
 protected:
  ScriptedFileBrowser browser;
  ProjectFileDialogWindow dialog{browser};
};

TEST_F(ProjectDialog, AProjectIsOpenedThroughTheFileDialog) {
  browser.answer = "C:\\galleries\\a.gpj";
  EXPECT_EQ(dialog.Choose({.purpose = core::ProjectFileDialog::Purpose::Open,
                           .title = "Open Gallery Project",
                           .filter = "Vantorium 3.0 Project Files (*.gpj)|*.gpj",
                           .defaultPattern = "*.gpj",
                           .defaultExtension = "",
                           .folder = "C:\\galleries",
                           .fileName = ""}),
            "C:\\galleries\\a.gpj");
  ASSERT_EQ(browser.requests.size(), 1U);
  const FileDialogRequest& request = browser.requests[0];
  EXPECT_TRUE(request.open);
  EXPECT_FALSE(request.multiSelect);
  EXPECT_FALSE(request.preview);
  EXPECT_EQ(request.title, "Open Gallery Project");
  EXPECT_EQ(request.filter, "Vantorium 3.0 Project Files (*.gpj)|*.gpj");
  EXPECT_EQ(request.initialFolder, "C:\\galleries");
  EXPECT_EQ(request.fileName, "");
}

TEST_F(ProjectDialog, AProjectIsSavedUnderTheProposedName) {
  EXPECT_EQ(dialog.Choose({.purpose = core::ProjectFileDialog::Purpose::Save,
                           .title = "Save Gallery Project As",
                           .filter = "Projects|*.gpj",
                           .defaultPattern = "",
                           .defaultExtension = "gpj",
                           .folder = "C:\\galleries",
                           .fileName = "untitled.gpj"}),
            "");
  const FileDialogRequest& request = browser.requests.at(0);
  EXPECT_FALSE(request.open);
  EXPECT_EQ(request.defaultExtension, "gpj");
  EXPECT_EQ(request.fileName, "untitled.gpj");
}

}  // namespace
}  // namespace vantorium::ui
