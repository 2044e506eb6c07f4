#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vantorium::ui {

/// Options of a file dialog. Paths are path text.
struct FileDialogRequest {
  bool open = true;          ///< an Open dialog, else a Save dialog
  bool multiSelect = false;  ///< several files can be chosen
  std::string title = {};
  std::string initialFolder = {};
  std::string fileName = {};
  std::string filter = {};            ///< pairs of description and pattern, separated by "|"
  std::string defaultExtension = {};  ///< appended to a name that does not end in it; without a dot
  bool preview = false;               ///< shows a picture of the chosen file
  std::size_t filterIndex = 0;        ///< initial filter, from 1; 0 means the first
};

/// What the user chose in a file dialog.
struct FileDialogResult {
  std::string result = {};              ///< path of the file; for several files the text of the name box; "" for none
  std::string folder = {};              ///< folder of the files, with a trailing backslash
  std::vector<std::string> names = {};  ///< for several files their names in that folder; else `result`
};

/// The program's file dialog.
class FileBrowser {
 public:
  virtual ~FileBrowser() = default;
  [[nodiscard]] virtual FileDialogResult DisplayFileDialog(const FileDialogRequest& request) = 0;
};

/// The program's folder dialog.
class FolderBrowser {
 public:
  virtual ~FolderBrowser() = default;
  /// Returns path text of the chosen folder, or nullopt if none was chosen.
  [[nodiscard]] virtual std::optional<std::string> BrowseForFolder(const std::string& title,
                                                                   const std::string& initialFolder) = 0;
};

}  // namespace vantorium::ui
