#pragma once

#include "core/ProjectEditor.h"
#include "core/ProjectFields.h"
#include "env/MessageBoxPort.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QObject>
#include <functional>
#include <vector>

namespace vantorium::env {
class PathMap;
}  // namespace vantorium::env

namespace vantorium::ui {

class ColorButton;
class ColorDialog;
class UpDown;

/// Binds each control to its project field, with one overload per class of control. The user's edits go through the
/// ProjectEditor and all its rules; Refresh shows the project in every control. An edit that the rules refuse is
/// reported in a message box and reverted.
class FieldBinder : public QObject {
  Q_OBJECT

 public:
  FieldBinder(core::ProjectEditor& editor, env::MessageBoxPort& boxes) : editor_(editor), boxes_(boxes) {}

  void Bind(QLineEdit& control, std::string core::GalleryProject::*field);
  /// The path of a file. The box shows its surface form, and the text itself while the user is
  /// typing. A native path that was typed or pasted becomes path text when the user leaves the box.
  void BindPath(QLineEdit& control, const env::PathMap& paths, std::string core::GalleryProject::*field);
  /// A number with its spinner.
  void Bind(QLineEdit& control, UpDown& spinner, core::Digits core::GalleryProject::*field);
  void Bind(QCheckBox& control, core::Flag core::GalleryProject::*field);
  /// A menu entry that can be checked.
  void Bind(QAction& control, core::Flag core::GalleryProject::*field);
  /// Fills the list with the field's texts.
  void Bind(QComboBox& control, core::Choice core::GalleryProject::*field);
  /// Fills the list in the same way; an index that the user picks goes to `choose` instead of the field.
  void Bind(QComboBox& control, core::Choice core::GalleryProject::*field, std::function<void(core::Choice)> choose);

  /// A button that shows a color and asks for another one when it is clicked.
  void Bind(ColorButton& control, ColorDialog& dialog, core::Color core::GalleryProject::*field);

  /// Runs an edit that a control or a dialog asks for, then refreshes the controls and emits Edited.
  void Edit(const std::function<void(core::ProjectEditor&)>& edit);
  /// Shows the project in the controls. A line whose text is already right is left alone: the user may be typing in it.
  void Refresh();

  [[nodiscard]] const core::GalleryProject& Project() const { return editor_.Project(); }
  /// The fields that have a control, in the order in which they were bound.
  [[nodiscard]] const std::vector<const core::ProjectField*>& BoundFields() const { return fields_; }

 signals:
  /// Emitted after every edit, with the controls refreshed.
  void Edited();

 private:
  /// Takes what the user types; showing the field is the caller's part.
  void TakeText(QLineEdit& control, std::string core::GalleryProject::*field, QValidator* validator);
  void BindText(QLineEdit& control, std::string core::GalleryProject::*field, QValidator* validator);

  core::ProjectEditor& editor_;
  env::MessageBoxPort& boxes_;
  std::vector<const core::ProjectField*> fields_;
  std::vector<std::function<void(const core::GalleryProject&)>> show_;
};

}  // namespace vantorium::ui
