#pragma once

#include "ui/model/files/FileChoice.h"
#include "ui/model/files/FileNameBox.h"

#include <QFileDialog>
#include <QSet>
#include <QTimer>
#include <filesystem>

class QAbstractItemView;
class QFileSystemModel;
class QLineEdit;
class QPushButton;

namespace vantorium::ui {

class FilePreviewPane;
class FolderPathBox;

/// The window of one file dialog: Qt's own, with path text in place of native paths, a preview at its right, and this
/// program's rules for its name box.
class FileWindow : public QFileDialog {
  Q_OBJECT

 public:
  /// `home` is where it begins if the request names no folder; native.
  FileWindow(const FileDialogRequest& request, const env::mFileFunctions& files, env::MessageBoxPort& boxes,
             const std::filesystem::path& home, QWidget* parent = nullptr);

  /// What was chosen, once the dialog is accepted.
  [[nodiscard]] const FileDialogResult& Choice() const { return choice_.Result(); }

 protected:
  void accept() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SetUp(const FileDialogRequest& request);
  void SetUpFilters(const FileDialogRequest& request);
  void SetUpLayout(const FileDialogRequest& request);
  void FollowSelection();
  void Begin(const FileDialogRequest& request, const std::filesystem::path& home);

  [[nodiscard]] std::string FolderText() const;
  [[nodiscard]] std::size_t NameLength() const;
  void TellSelection();
  void ShowSurfaces();
  void RefreshOk();
  void EnterFolder(const QString& folder);
  void TakeLoadedFolder(const QString& folder);
  void FitColumns();

  const env::mFileFunctions& files_;
  FileNameLimit limit_;
  FileChoice choice_;
  QTimer selectionChange_;  // merges several changes in one turn of the event loop
  QFileSystemModel* model_ = nullptr;
  QAbstractItemView* view_ = nullptr;
  QLineEdit* name_ = nullptr;
  QPushButton* ok_ = nullptr;
  FilePreviewPane* preview_ = nullptr;
  QSet<QString> loadedFolders_;  // native
};

}  // namespace vantorium::ui
