#pragma once

#include <optional>
#include <string>
#include <unordered_map>

namespace vantorium::generation {

/// The files of a gallery, by their paths relative to its folder, to find those that share a name where upper and lower
/// case do not matter.
class NamesOfFiles {
 public:
  struct Added {
    std::string own;                   ///< the path of the file that was added
    std::optional<std::string> other;  ///< that of one added before, if they differ in case at most
  };
  /// Adds a file. Folders may be written in different ways, such as "a/../b/" and "/b/".
  Added Add(const std::string& folder, const std::string& name);

 private:
  [[nodiscard]] const std::string& Normalized(const std::string& folder);

  std::unordered_map<std::string, std::string> folders_;  ///< as written, and without what may differ
  std::unordered_map<std::string, std::string> files_;    ///< by their folded names
};

}  // namespace vantorium::generation
