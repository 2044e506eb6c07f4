#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vantorium {

/// What a file dialog is opened with. Paths are path text.
struct FileDialogRequest {
  bool open = true;          ///< an Open dialog, else a Save dialog
  bool multiSelect = false;  ///< several files can be chosen
  std::string title = {};
  std::string initialFolder = {};
  std::string fileName = {};
  std::string filter = {};            ///< pairs of a description and a pattern, all between "|"
  std::string defaultExtension = {};  ///< goes behind a name that does not end in it, has no dot
  bool preview = false;               ///< with a picture of the chosen file
  std::size_t filterIndex = 0;        ///< the filter to begin with, from 1; 0 for the first
};

/// What was chosen in it.
struct FileDialogResult {
  std::string result = {};              ///< path of the file; of several files the text of the name box; "" for none
  std::string folder = {};              ///< where the files are, with a backslash at its end
  std::vector<std::string> names = {};  ///< of several files their names in that folder; else `result`
};

/// The file dialog of the whole program.
class FileBrowser {
 public:
  virtual ~FileBrowser() = default;
  [[nodiscard]] virtual FileDialogResult DisplayFileDialog(const FileDialogRequest& request) = 0;
};

/// The folder dialog of the whole program.
class FolderBrowser {
 public:
  virtual ~FolderBrowser() = default;
  /// Path text of the chosen folder; nothing when none was.
  [[nodiscard]] virtual std::optional<std::string> BrowseForFolder(const std::string& title,
                                                                   const std::string& initialFolder) = 0;
};

}  // namespace vantorium
