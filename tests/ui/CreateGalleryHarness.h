#pragma once

#include "publish/ServerListFile.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/ScriptedFileBrowser.h"
#include "tests/fakes/ScriptedFolderBrowser.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmCreateGallery.h"
#include "ui/dialogs/frmPublish.h"

namespace vantorium::fakes {

/// Whether a control has its window's focus. QWidget::hasFocus would not do: without a screen, no window becomes active
/// after a dialog ends.
inline bool GetsFocus(QWidget& form, const char* name) {
  return form.focusWidget() == &Find<QWidget>(form, name);
}

/// A program folder with a server list, and the ports of frmCreateGallery and frmPublish.
class CreateGalleryHarness {
 public:
  CreateGalleryHarness() { WriteServers(0); }

  void WriteServers(std::size_t selected) const { publish::WriteServerList({kOne, kTwo}, selected, ServerFile()); }
  [[nodiscard]] std::filesystem::path ServerFile() const { return publish::ServerListFileName(program.Path()); }
  [[nodiscard]] std::string ServerText() const { return program.Read("vantorium.pub"); }
  [[nodiscard]] ui::frmCreateGallery::Parts Parts() {
    return {.preferences = preferences,
            .serverListFile = ServerFile(),
            .paths = paths,
            .boxes = boxes,
            .fileBrowser = fileBrowser,
            .folderBrowser = folderBrowser};
  }

  const publish::ServerProfile kOne = {"One", "one.example.org", "me", "a/b", "start.htm", 15, "www"};
  const publish::ServerProfile kTwo = {"Two", "two.example.org", "anonymous", "", "index.htm", 0, ""};

  TemporaryFolder program;
  env::Preferences preferences;
  env::PathMap paths{{{'C', "/home/me"}}};
  RecordingMessageBox boxes;
  ScriptedFileBrowser fileBrowser;
  ScriptedFolderBrowser folderBrowser;
};

}  // namespace vantorium::fakes
