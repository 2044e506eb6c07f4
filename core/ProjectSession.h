#pragma once

#include "core/ImageListOperations.h"
#include "core/Project.h"
#include "core/ProjectFileDialog.h"
#include "core/ProjectSessionHost.h"
#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/PathMap.h"

#include <string>
#include <string_view>

namespace vantorium::core {

/// The menu commands New, Open, Save and Save As, and the same without dialogs. A window only forwards to it. Paths are
/// path text. Failures never propagate; each is shown in a message box.
class ProjectSession {
 public:
  struct Parts {
    const env::PathMap& paths;
    env::MessageBoxPort& boxes;
    ProjectFileDialog& dialog;
    ProjectSessionHost& host;
    env::EventLoop& events;
  };

  ProjectSession(Project& project, ImageListOperations& images, const Parts& parts)
      : project_(project), images_(images), parts_(parts) {}

  /// Does nothing for a new project that is still untouched.
  void NewProject();
  void OpenProject();
  /// `commandLine`: the path of a project file as the user typed it, path text or native, perhaps in quotes; does
  /// nothing if empty. Appends the images to those in the list.
  void OpenProjectFromCommandLine(std::string_view commandLine);
  /// Asks for a name if the project has no file, or if a failed Open put another file's settings under the old file's
  /// name. Returns true if the project is saved.
  bool SaveProject();
  /// An untitled project stays untitled, so that the next Save asks for a name again.
  void SaveProjectAs();

  /// If the project is modified, asks whether to save it, and saves it. Returns false if the user cancels or saving
  /// fails; the caller must then keep the project as it is.
  [[nodiscard]] bool MayLeaveProject();

  /// Replaces the list and the settings by the project at `path`. On failure shows message boxes that say why and
  /// returns false; the project then holds what was read so far.
  [[nodiscard]] bool LoadProject(const std::string& path);
  /// Repairs what output requires and writes the project to `path`, which becomes its file. On failure shows a message
  /// box and returns false.
  [[nodiscard]] bool SaveProjectTo(const std::string& path);

 private:
  [[nodiscard]] env::BoxAnswer AskToSave();
  void StartUntitledProject();
  [[nodiscard]] bool Read(const std::string& path);
  [[nodiscard]] bool ReadWhileDisabled(const std::string& path);
  void AdoptOpened(const std::string& path);
  void TakePath(const std::string& path);
  [[nodiscard]] bool WriteToChosenFile();
  [[nodiscard]] bool WriteToItsFile();
  [[nodiscard]] bool Write(const std::string& path);
  [[nodiscard]] bool WriteWhileDisabled(const std::string& path);
  void AdoptSaved();

  Project& project_;
  ImageListOperations& images_;
  Parts parts_;
  bool hasMovedSources_ = false;         ///< the last file that was read names other places than the project
  bool holdsPartOfAnotherFile_ = false;  ///< an Open failed, and the project's file must not be replaced without asking
};

}  // namespace vantorium::core
