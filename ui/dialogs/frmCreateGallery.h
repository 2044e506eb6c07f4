#pragma once

#include "ui/model/dialogs/CreateGalleryModel.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QRadioButton>
#include <memory>

namespace Ui {
class frmCreateGallery;
}

namespace vantorium::ui {

/// The last dialog before a run that writes output. The main window keeps one for its lifetime, and hides and shows it.
class frmCreateGallery : public QDialog {
  Q_OBJECT

 public:
  /// What the form works with; all of it must outlive the form.
  struct Parts {
    env::Preferences& preferences;
    std::filesystem::path serverListFile;
    const env::PathMap& paths;
    env::MessageBoxPort& boxes;
    FileBrowser& fileBrowser;
    FolderBrowser& folderBrowser;
  };

  frmCreateGallery(const Parts& parts, QWidget* parent);
  ~frmCreateGallery() override;

  /// Shows the dialog modally. Returns nullopt if the user cancels.
  [[nodiscard]] std::optional<generation::RunOrder> Ask();

  void accept() override;
  void reject() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  using Option = generation::GenerationMode;
  using Edit = void (CreateGalleryModel::*)(const std::string& text);

  void ConnectButtons();
  void BindOption(QRadioButton& control, Option option);
  void BindSwitch(QCheckBox& control, CreateGalleryModel::Switch box);
  void BindText(QLineEdit& control, Edit edit);
  void BindPath(QLineEdit& control, Edit edit);

  void ShowTexts();
  void ShowPasswords();
  void ShowEnabled();
  void ShowCaptions();
  void EnableFields();
  void BrowseServer(bool hideIndexFile, QWidget& password);
  void BrowseSourceFolder();

  Parts parts_;
  CreateGalleryModel model_;
  std::unique_ptr<Ui::frmCreateGallery> ui_;
};

}  // namespace vantorium::ui
