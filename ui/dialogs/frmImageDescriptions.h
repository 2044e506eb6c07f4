#pragma once

#include "ui/model/dialogs/Descriptions.h"

#include <QByteArray>
#include <QDialog>
#include <array>
#include <memory>
#include <string>

class QComboBox;
class QFrame;
class QGroupBox;
class QPlainTextEdit;
class QPushButton;

namespace Ui {
class frmImageDescriptions;
}

namespace vantorium::ui {

class FieldBinder;

/// The tool window that edits the descriptions of the list's current image, and the settings that all descriptions of
/// the gallery share. It stays open while the user works in the main window, and is hidden and shown again.
class frmImageDescriptions : public QDialog {
  Q_OBJECT

 public:
  frmImageDescriptions(core::Project& project, FieldBinder& binder, env::MessageBoxPort& boxes, QWidget* parent);
  ~frmImageDescriptions() override;

  /// Shows the list's current row and the project's settings. Call after changing the current row or loading a project.
  /// Does not count as an edit.
  void FollowSelection();

  /// Stores the placements and alignments in the project, which otherwise happens when the window is closed. Call
  /// before saving the project, or generating from it, while the window is open.
  void StorePlacings();

  /// The title bar and Escape do what the button does.
  void reject() override;

  /// Restores the position and size that the window had when it was last hidden.
  void setVisible(bool visible) override;

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  /// The controls of one tab.
  struct Page {
    const DescriptionKind& kind;
    QFrame& frame;
    QPushButton& headerAndFooter;
    QComboBox& placement;
    QComboBox& alignment;
    QPlainTextEdit& header;
    QPlainTextEdit& footer;
    QGroupBox& caption;
    QPlainTextEdit& text;
  };

  void Connect(const Page& page);
  void WriteSetting(QPlainTextEdit& box, std::string core::GalleryProject::*field);
  void Fill(QPlainTextEdit& box, const std::string& text, bool sameSubject);
  [[nodiscard]] const Page& CurrentPage() const;
  void EnablePage();
  void TurnPage();
  void ShowPlacings();
  void ShowAlignments(const Page& page);
  void EditHeaderAndFooter(const Page& page);
  void ClearAll();

  core::Project& project_;
  FieldBinder& binder_;
  env::MessageBoxPort& boxes_;
  Descriptions model_;
  std::unique_ptr<Ui::frmImageDescriptions> ui_;
  std::array<Page, 2> pages_;
  std::string shownProject_;  // the project's file name
  std::string shownImage_;
  QByteArray place_;  // position and size when last hidden; empty before
};

}  // namespace vantorium::ui
