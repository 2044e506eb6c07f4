#pragma once

#include "env/MessageBoxPort.h"
#include "env/mFileFunctions.h"
#include "ui/model/files/FileBrowser.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::ui {

/// Decides what happens to the text in a file dialog's name box when OK is pressed. Paths are path text; the box also
/// accepts native paths.
class FileChoice {
 public:
  enum class Step {
    Stay,         ///< nothing was chosen; unless the box was empty, the user was told why
    EnterFolder,  ///< the box names a folder, Folder()
    Accept        ///< Result() is the choice
  };

  FileChoice(FileDialogRequest request, const env::mFileFunctions& files, env::MessageBoxPort& boxes);

  /// Sets the file that the user has just selected.
  void Browsed(std::string file) { lastBrowsed_ = std::move(file); }

  /// Handles OK with `text` in the box while the dialog shows `folder`. A file to open must exist; an existing file is
  /// replaced only after a question. A name that does not end in the default extension gets it. Several files must be
  /// in one folder. Names that a project cannot store are refused.
  [[nodiscard]] Step Ok(const std::string& folder, const std::string& text);

  [[nodiscard]] const std::string& Folder() const { return folder_; }
  [[nodiscard]] const FileDialogResult& Result() const { return result_; }

  /// Returns the box's text with each path in its surface form; other text is unchanged.
  [[nodiscard]] std::string WithSurfaces(const std::string& text) const;

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
  const env::mFileFunctions& files_;
  env::MessageBoxPort& boxes_;
  std::string lastBrowsed_;
  std::string folder_;
  FileDialogResult result_;
};

}  // namespace vantorium::ui
