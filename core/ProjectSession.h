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

namespace vantorium {

/// New, Open, Save and Save As, as a menu has them, and the same without dialogs. A window only forwards to it. Paths
/// are path text. No failure leaves it but by its box.
class ProjectSession {
 public:
  struct Ports {
    const PathMap& paths;
    MessageBoxPort& boxes;
    ProjectFileDialog& dialog;
    ProjectSessionHost& host;
    EventLoop& events;
  };

  ProjectSession(Project& project, ImageListOperations& images, const Ports& ports)
      : project_(project), images_(images), ports_(ports) {}

  /// Does nothing on a new project with which nothing has happened yet.
  void NewProject();
  void OpenProject();
  /// `commandLine`: the path of a project file as the user typed it, path text or native, perhaps in quotes; an empty
  /// one does nothing. The images go behind those that are in the list.
  void OpenProjectFromCommandLine(std::string_view commandLine);
  /// Asks for a name when the project has no file, or when an opening that failed has put its own settings under the
  /// old file's name. True when the project is saved.
  bool SaveProject();
  /// An untitled project stays untitled, so that the next Save asks for a name again.
  void SaveProjectAs();

  /// With a modified project asks whether to save it, and saves it. False when the user cancels or the saving fails:
  /// the caller then keeps the project as it is.
  [[nodiscard]] bool MayLeaveProject();

  /// Reads the project of `path` into the list and the settings. False after the boxes that say why; the project then
  /// holds what was read so far.
  [[nodiscard]] bool LoadProject(const std::string& path);
  /// Repairs what an output can't do without and writes the project to `path`, which becomes its file. False after a
  /// box.
  [[nodiscard]] bool SaveProjectTo(const std::string& path);

 private:
  [[nodiscard]] BoxAnswer AskToSave();
  void StartUntitledProject();
  [[nodiscard]] bool Read(const std::string& path);
  void AdoptOpened(const std::string& path);
  void TakePath(const std::string& path);
  [[nodiscard]] bool WriteToChosenFile();
  [[nodiscard]] bool WriteToItsFile();
  [[nodiscard]] bool Write(const std::string& path);
  void AdoptSaved();

  Project& project_;
  ImageListOperations& images_;
  Ports ports_;
  bool holdsPartOfAnotherFile_ = false;  ///< an opening failed, and the project's file must not be replaced unasked
};

}  // namespace vantorium
