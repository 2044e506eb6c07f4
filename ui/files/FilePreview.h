#pragma once

#include <QWidget>
#include <filesystem>
#include <memory>
#include <string>

namespace Ui {
class frmFileBrowser;
}

namespace vantorium {

class PreviewLoader;
class mFileFunctions;

/// What stands at the right of a file dialog: a picture of the file in hand, its size, and a check box to do without.
/// A file that is no picture shows nothing. A click on the picture shows it in full.
class FilePreview : public QWidget {
  Q_OBJECT

 public:
  /// Without `wanted` it takes no room and stays unchecked.
  FilePreview(const mFileFunctions& files, bool wanted, QWidget* parent = nullptr);
  ~FilePreview() override;

  /// Takes a file in hand, path text; an empty one for none.
  void Show(const std::string& file);

 private:
  void Refresh();
  void Clear();
  void ShowJPEG(const std::filesystem::path& native);
  void ShowOther(const std::filesystem::path& native);
  void ShowSize(int width, int height);
  void ShowInFull();

  const mFileFunctions& files_;
  std::unique_ptr<Ui::frmFileBrowser> ui_;
  PreviewLoader* loader_;
  std::string file_;
};

}  // namespace vantorium
