#pragma once

#include "core/Project.h"
#include "env/EventLoop.h"
#include "env/PathMap.h"
#include "env/WindowState.h"

#include <string>

namespace vantorium::core {

/// Writes the settings and the images of a project to its file. Gives the event loop turns, in which nothing may change
/// the project.
class ProjectFileWriter {
 public:
  ProjectFileWriter(const Project& project, const env::PathMap& paths, env::WindowState& window, env::EventLoop& events)
      : project_(project), paths_(paths), window_(window), events_(events) {}

  /// Writes the file at `path` (path text) anew. An old file stays unchanged until the new one is complete and on disk,
  /// and remains if the result is false. If the path is a symbolic link, its target is replaced.
  [[nodiscard]] bool WriteProjectFile(const std::string& path) const;

 private:
  const Project& project_;
  const env::PathMap& paths_;
  env::WindowState& window_;
  env::EventLoop& events_;
};

/// Returns the content of the project file: an XML document in UTF-8 without a declaration and without white space
/// between elements. What XML cannot hold (control characters, bytes that are not UTF-8) becomes the replacement
/// character, except in the path of an image: such a file would name another image and could not be opened again, so
/// this throws RuntimeFailure InvalidArgument. So does a project beyond the reader's limits.
[[nodiscard]] std::string ProjectFileText(const Project& project, env::EventLoop& events);

}  // namespace vantorium::core
