#pragma once

#include "core/Project.h"
#include "core/file/ProjectFileStatus.h"
#include "env/EventLoop.h"
#include "env/PathMap.h"

#include <string>

namespace vantorium {

/// Writes the settings and the images of a project to its file. The event loop gets its turns meanwhile; none may
/// change the project.
class ProjectFileWriter {
 public:
  ProjectFileWriter(const Project& project, const PathMap& paths, ProjectFileStatus& status, EventLoop& events)
      : project_(project), paths_(paths), status_(status), events_(events) {}

  /// Writes the file at `path` (path text) anew. An old file stays as it was until the new one is whole and on the
  /// disk, and for good when the result is false. Where the path is a symbolic link the file behind it is replaced.
  [[nodiscard]] bool WriteProjectFile(const std::string& path) const;

 private:
  const Project& project_;
  const PathMap& paths_;
  ProjectFileStatus& status_;
  EventLoop& events_;
};

/// The content of the project file: an XML document in UTF-8 without a declaration and without white space between
/// elements. What XML can't hold (control characters, bytes that are no UTF-8) becomes the replacement character,
/// except in the path of an image: a file that names another image could not be opened again, so that is the
/// RuntimeFailure InvalidArgument. So is a project beyond what the reader takes.
[[nodiscard]] std::string ProjectFileText(const Project& project, EventLoop& events);

}  // namespace vantorium
