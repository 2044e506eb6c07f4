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

namespace vantorium {

class FieldBinder;

/// The tool window that edits the descriptions of the list's current image, and what all descriptions of the gallery
/// have in common. It stays open while the user works in the main window, and is hidden and shown again.
class frmImageDescriptions : public QDialog {
  Q_OBJECT

 public:
  frmImageDescriptions(Project& project, FieldBinder& binder, MessageBoxPort& boxes, QWidget* parent);
  ~frmImageDescriptions() override;

  /// Shows the list's current row and the project's settings. For whoever changes the current row or loads a project;
  /// is no edit.
  void FollowSelection();

  /// Stores the placements and alignments in the project, which otherwise happens when the window is closed. For
  /// whoever is about to save the project, or make something of it, while the window is open.
  void StorePlacings();

  /// Closing by the title bar and Escape do as the button does.
  void reject() override;

  /// Comes back where its user left it, in the size that it had.
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
  void WriteSetting(QPlainTextEdit& box, std::string GalleryProject::*field);
  void Fill(QPlainTextEdit& box, const std::string& text, bool sameSubject);
  [[nodiscard]] const Page& CurrentPage() const;
  void EnablePage();
  void TurnPage();
  void ShowPlacings();
  void ShowAlignments(const Page& page);
  void EditHeaderAndFooter(const Page& page);
  void ClearAll();

  Project& project_;
  FieldBinder& binder_;
  MessageBoxPort& boxes_;
  Descriptions model_;
  std::unique_ptr<Ui::frmImageDescriptions> ui_;
  std::array<Page, 2> pages_;
  std::string shownProject_;  // its file
  std::string shownImage_;
  QByteArray place_;  // when it was last hidden; empty before
};

}  // namespace vantorium
