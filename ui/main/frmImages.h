#pragma once

#include "core/ImageListOperations.h"
#include "core/Project.h"
#include "env/Clock.h"
#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/PathMap.h"
#include "env/Preferences.h"
#include "env/Shell.h"
#include "ui/model/dialogs/FindModel.h"
#include "ui/model/files/FileBrowser.h"
#include "ui/widgets/FieldBinder.h"

#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Ui {
class frmImages;
}

namespace vantorium::ui {

class UprightQuestion;

/// The Images page of the main window, with the image list.
class frmImages : public QWidget {
  Q_OBJECT

 public:
  struct Parts {
    core::Project& project;
    core::ImageListOperations& images;
    FieldBinder& binder;
    env::MessageBoxPort& boxes;
    env::EventLoop& loop;
    env::Shell& shell;
    const env::Clock& clock;
    const env::PathMap& paths;
    FileBrowser& browser;
    env::Preferences& preferences;
    /// Returns the folders that the user chose to add, path text; none if the user cancelled.
    std::function<std::vector<std::string>()> askForImageFolders;
  };

  explicit frmImages(const Parts& parts, QWidget* parent = nullptr);
  ~frmImages() override;

  /// Shows the list as it is now. Call after a change that did not come from this page. Must not be called while an
  /// operation on the list is in progress.
  void RefreshList();
  /// Starts to show the current image. If it cannot be decoded, the user is asked about it later, from the event loop.
  void RefreshPreview();
  /// Call when another project has taken the place of the present one.
  void FollowProject();
  /// `position` counts from 1. During an operation of this page nothing scrolls; the last position is scrolled to at
  /// its end.
  void ScrollIntoView(std::size_t position);

 signals:
  /// The current row changed, or its texts may have changed.
  void CurrentChanged();
  /// The user wants to edit descriptions.
  void DescriptionsAsked();
  /// An operation of this page has finished.
  void ListChanged();
  /// `file` is path text.
  void FullScreenPreviewAsked(const std::string& description, const std::string& file);

 private:
  void ConnectList();
  void ConnectPreview();
  void ConnectButtons();
  void Do(const std::function<void()>& operation);
  void AddChosenFiles();
  void AddChosenFolders();
  void Rename();
  void Find();
  void Shuffle();
  void AskForFullScreen();
  void AskAboutInvalidImage();
  void TurnUpright();
  [[nodiscard]] bool MayAsk() const;
  [[nodiscard]] const core::ImageEntry* CurrentEntry() const;

  Parts parts_;
  std::unique_ptr<Ui::frmImages> ui_;
  UprightQuestion* upright_;  // a child of this page
  FindModel find_;
  bool working_ = false;      // an operation is changing the list
  std::size_t scrollTo_ = 0;  // position to scroll to after the operation; 0 for none
};

}  // namespace vantorium::ui
