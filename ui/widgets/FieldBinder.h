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

namespace vantorium {

class ColorButton;
class ColorDialog;
class PathMap;
class UpDown;

/// Binds each control to its project field, with one overload per class of control. The user's edits go through the
/// ProjectEditor and all its rules; Refresh shows the project in every control. An edit that the rules refuse is
/// reported in a message box and reverted.
class FieldBinder : public QObject {
  Q_OBJECT

 public:
  FieldBinder(ProjectEditor& editor, MessageBoxPort& boxes) : editor_(editor), boxes_(boxes) {}

  void Bind(QLineEdit& control, std::string GalleryProject::*field);
  /// The path of a file. A native path that was typed or pasted becomes path text when the user leaves the box.
  void BindPath(QLineEdit& control, const PathMap& paths, std::string GalleryProject::*field);
  /// A number with its spinner.
  void Bind(QLineEdit& control, UpDown& spinner, Digits GalleryProject::*field);
  void Bind(QCheckBox& control, Flag GalleryProject::*field);
  /// A menu entry that can be checked.
  void Bind(QAction& control, Flag GalleryProject::*field);
  /// Fills the list with the field's texts.
  void Bind(QComboBox& control, Choice GalleryProject::*field);
  /// Fills the list in the same way; an index that the user picks goes to `choose` instead of the field.
  void Bind(QComboBox& control, Choice GalleryProject::*field, std::function<void(Choice)> choose);

  /// A button that shows a color and asks for another one when it is clicked.
  void Bind(ColorButton& control, ColorDialog& dialog, Color GalleryProject::*field);

  /// Runs an edit that a control or a dialog asks for, then refreshes the controls and emits Edited.
  void Edit(const std::function<void(ProjectEditor&)>& edit);
  /// Shows the project in the controls. A line whose text is already right is left alone: the user may be typing in it.
  void Refresh();

  [[nodiscard]] const GalleryProject& Project() const { return editor_.Project(); }
  /// The fields that have a control, in the order in which they were bound.
  [[nodiscard]] const std::vector<const ProjectField*>& BoundFields() const { return fields_; }

 signals:
  /// Emitted after every edit, with the controls refreshed.
  void Edited();

 private:
  void BindText(QLineEdit& control, std::string GalleryProject::*field, QValidator* validator);

  ProjectEditor& editor_;
  MessageBoxPort& boxes_;
  std::vector<const ProjectField*> fields_;
  std::vector<std::function<void(const GalleryProject&)>> show_;
};

}  // namespace vantorium
