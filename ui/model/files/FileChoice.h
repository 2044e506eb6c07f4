#pragma once

#include "env/MessageBoxPort.h"
#include "env/mFileFunctions.h"
#include "ui/model/files/FileBrowser.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium {

/// What becomes of the text in a file dialog's name box when OK is pressed. Paths are path text; a native path in the
/// box is taken too.
class FileChoice {
 public:
  enum class Step {
    Stay,         ///< nothing was chosen; the user was told why
    EnterFolder,  ///< the box names a folder, Folder()
    Accept        ///< Result() is the choice
  };

  FileChoice(FileDialogRequest request, const mFileFunctions& files, MessageBoxPort& boxes);

  /// The file that the user has just selected.
  void Browsed(std::string file) { lastBrowsed_ = std::move(file); }

  /// What OK does with `text` while the dialog shows `folder`. A file to open must exist and an existing file is only
  /// replaced after a question; a name that does not end in the default extension gets it; several files lie in one
  /// folder; what cannot stand in a project is refused.
  [[nodiscard]] Step Ok(const std::string& folder, const std::string& text);

  [[nodiscard]] const std::string& Folder() const { return folder_; }
  [[nodiscard]] const FileDialogResult& Result() const { return result_; }

  /// The box's text with each native path turned to path text; other texts stay as they are.
  [[nodiscard]] std::string WithPathText(const std::string& text) const;

 private:
  [[nodiscard]] bool Has(std::uint32_t flag) const { return (flags_ & flag) != 0; }
  [[nodiscard]] bool IsFolder(const std::string& path) const;
  [[nodiscard]] std::string PathOf(const std::string& folder, const std::string& name) const;
  [[nodiscard]] std::string WithDefaultExtension(const std::string& path) const;
  [[nodiscard]] bool MayBeChosen(const std::string& path);
  [[nodiscard]] Step AcceptOne(const std::string& path);
  [[nodiscard]] Step AcceptSeveral(const std::string& text, const std::vector<std::string>& names,
                                   const std::vector<std::string>& paths);
  void Tell(const std::string& text);

  FileDialogRequest request_;
  std::uint32_t flags_;
  const mFileFunctions& files_;
  MessageBoxPort& boxes_;
  std::string lastBrowsed_;
  std::string folder_;
  FileDialogResult result_;
};

}  // namespace vantorium
