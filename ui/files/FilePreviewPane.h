#pragma once

#include <QWidget>
#include <filesystem>
#include <memory>
#include <string>

namespace Ui {
class frmFileBrowser;
}

namespace vantorium::env {
class mFileFunctions;
}  // namespace vantorium::env

namespace vantorium::ui {

class PreviewLoader;

/// The right side of a file dialog: a preview of the selected file, its size, and a check box to turn the preview off.
/// A file that is not a picture shows nothing. A click on the preview shows the picture full screen.
class FilePreviewPane : public QWidget {
  Q_OBJECT

 public:
  /// If `wanted` is false, it takes no room and stays unchecked.
  FilePreviewPane(const env::mFileFunctions& files, bool wanted, QWidget* parent = nullptr);
  ~FilePreviewPane() override;

  /// Shows a file, given as path text; nothing if it is empty.
  void Show(const std::string& file);

 private:
  void Refresh();
  void Clear();
  void ShowJPEG(const std::filesystem::path& native);
  void ShowOther(const std::filesystem::path& native);
  void ShowSize(int width, int height);
  void ShowInFull();

  const env::mFileFunctions& files_;
  std::unique_ptr<Ui::frmFileBrowser> ui_;
  PreviewLoader* loader_;
  std::string file_;
};

}  // namespace vantorium::ui
