#pragma once

#include "core/ImageListOperations.h"
#include "core/MovedFolders.h"
#include "core/Project.h"
#include "core/file/ProjectReadResult.h"
#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/PathMap.h"
#include "env/WindowState.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace pugi {
class xml_node;
}

namespace vantorium::core {

class ProjectEditor;

/// Reads a project file into the one project. Gives the event loop turns, so that the progress shown is drawn.
class ProjectFileReader {
 public:
  ProjectFileReader(Project& project, ImageListOperations& images, const env::PathMap& paths,
                    env::MessageBoxPort& boxes, env::WindowState& window, env::EventLoop& events)
      : project_(project), images_(&images), paths_(paths), boxes_(boxes), window_(window), events_(events) {}
  /// A reader of settings alone: it leaves out the images with their texts, so their files need not exist.
  ProjectFileReader(Project& project, const env::PathMap& paths, env::MessageBoxPort& boxes, env::WindowState& window,
                    env::EventLoop& events)
      : project_(project), paths_(paths), boxes_(boxes), window_(window), events_(events) {}

  /// Is asked where folders are now, given the paths of the photographs in them. Returns those that are known.
  using MovedFoldersQuestion = std::function<std::vector<MovedFolder>(const std::vector<std::string>& sources)>;
  /// Sets what to ask, once a file, about photographs that have no place on this system, unless the user has drives. If
  /// it is not set, such a photograph is refused.
  void OnSourcesWithoutPlace(MovedFoldersQuestion question) { askForMovedFolders_ = std::move(question); }

  /// Resets the settings to those of a new project, then applies those of the file at `path` (path text) by the rules
  /// of an edit, and adds the file's images to the list, which the caller has cleared. On failure returns false, after
  /// a message box that says why; the project then holds what was read so far. Does not change the project's states
  /// (its name, IsModified and so on).
  [[nodiscard]] bool ReadProjectFile(const std::string& path);

  /// Whether photographs of the file were looked for elsewhere, so that the project is no longer that of its file.
  [[nodiscard]] bool HasMovedSources() const { return hasMovedSources_; }

  /// Shows a message box that says that the file at `path` is not a project file, and why.
  void ReportInvalidProjectFile(const std::string& path, const std::string& reason);

 private:
  [[nodiscard]] ReadResult ReadInto(ProjectEditor& editor, const std::string& path);
  [[nodiscard]] ReadResult ReadGallery(pugi::xml_node gallery, ProjectEditor& editor);

  void MoveSources(pugi::xml_node images);

  Project& project_;
  ImageListOperations* images_ = nullptr;  ///< null: the images are left out
  const env::PathMap& paths_;
  env::MessageBoxPort& boxes_;
  env::WindowState& window_;
  env::EventLoop& events_;
  MovedFoldersQuestion askForMovedFolders_{};
  bool hasMovedSources_ = false;
};

}  // namespace vantorium::core
