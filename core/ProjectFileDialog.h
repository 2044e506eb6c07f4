#pragma once

#include <string>

namespace vantorium {

/// The dialog in which the user names a project file.
class ProjectFileDialog {
 public:
  enum class Purpose { Open, Save };

  struct Request {
    Purpose purpose;
    std::string title;
    std::string filter;  ///< pairs of a description and a pattern, all between "|"
    std::string defaultPattern;
    std::string defaultExtension;  ///< goes behind a name that does not end in it, has no dot
    std::string folder;            ///< path text, where the dialog begins
    std::string fileName;          ///< the name proposed
  };

  virtual ~ProjectFileDialog() = default;
  /// The chosen file as path text, empty when nothing was chosen. A program without a window takes this class as it is.
  [[nodiscard]] virtual std::string Choose(const Request& /*request*/) { return {}; }
};

}  // namespace vantorium
