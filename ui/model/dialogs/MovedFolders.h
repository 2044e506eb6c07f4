#pragma once

#include "core/MovedFolders.h"
#include "env/mFileFunctions.h"
#include "ui/model/files/FileBrowser.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vantorium::ui {

/// The rules of frmMovedFolders: where the folders are now of photographs that have no place on this system.
class MovedFolders {
 public:
  struct Row {
    std::string from;      ///< the old folder, path text
    std::string to;        ///< the new folder as typed, or path text; empty: not known
    std::size_t images{};  ///< of the project in the old folder
    std::size_t found{};   ///< of these in the new folder
  };

  /// `sources`: the paths of the photographs, at least one.
  MovedFolders(const std::vector<std::string>& sources, const env::mFileFunctions& files);

  [[nodiscard]] const std::vector<Row>& Rows() const { return rows_; }
  void Choose(std::size_t row) { chosen_ = row; }
  [[nodiscard]] std::size_t Chosen() const { return chosen_; }

  // The new folder of the chosen row. It may be a native path or path text.
  void EditNewFolder(const std::string& text);
  void Browse(FolderBrowser& browser);
  /// In its surface form.
  [[nodiscard]] std::string Shown(const std::string& folder) const { return files_.Paths().Surface(folder); }

  /// Such as "3 of 14".
  [[nodiscard]] static std::string CountText(const Row& row);
  /// Whether a new folder was given for any row.
  [[nodiscard]] bool HasNewFolder() const;
  /// Whether any photograph was found.
  [[nodiscard]] bool CanAccept() const;
  /// The folders in which photographs were found.
  [[nodiscard]] std::vector<core::MovedFolder> Moved() const;

 private:
  [[nodiscard]] core::MovedFolder FolderOf(const Row& row) const;
  void Count(std::size_t row);

  const env::mFileFunctions& files_;
  std::vector<core::SourceFolder> folders_;
  std::vector<Row> rows_;  // one for each folder
  std::size_t chosen_ = 0;
};

}  // namespace vantorium::ui
