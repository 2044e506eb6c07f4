#pragma once

#include <string>

namespace vantorium::core {

/// The dialog in which the user names a project file.
class ProjectFileDialog {
 public:
  enum class Purpose { Open, Save };

  struct Request {
    Purpose purpose;
    std::string title;
    std::string filter;  ///< pairs of description and pattern, separated by "|"
    std::string defaultPattern;
    std::string defaultExtension;  ///< without a dot; appended to a name that does not end in it
    std::string folder;            ///< path text, the initial folder
    std::string fileName;          ///< the proposed name
  };

  virtual ~ProjectFileDialog() = default;
  /// Returns the chosen file as path text, empty if none was chosen. A program without a window uses this class as it
  /// is.
  [[nodiscard]] virtual std::string Choose(const Request& /*request*/) { return {}; }
};

}  // namespace vantorium::core
