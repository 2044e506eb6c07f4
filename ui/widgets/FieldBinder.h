#pragma once

#include "core/ProjectEditor.h"
#include "core/ProjectFields.h"
#include "env/MessageBoxPort.h"

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

/// Ties each control to its field of the project, one overload a class of controls: an edit by the user goes through
/// the ProjectEditor with all its rules, and Refresh shows the project in every control. An edit that the rules refuse
/// is told in a message box and taken back.
class FieldBinder : public QObject {
  Q_OBJECT

 public:
  FieldBinder(ProjectEditor& editor, MessageBoxPort& boxes) : editor_(editor), boxes_(boxes) {}

  void Bind(QLineEdit& control, std::string GalleryProject::*field);
  /// The path of a file; a native one that was typed or pasted becomes path text when the box is left.
  void BindPath(QLineEdit& control, const PathMap& paths, std::string GalleryProject::*field);
  /// A number with its spinner.
  void Bind(QLineEdit& control, UpDown& spinner, Digits GalleryProject::*field);
  void Bind(QCheckBox& control, Flag GalleryProject::*field);
  /// A list, which is filled with the field's texts.
  void Bind(QComboBox& control, Choice GalleryProject::*field);
  /// A list, filled in the same way; an index that the user picks goes to `choose` in place of the field.
  void Bind(QComboBox& control, Choice GalleryProject::*field, std::function<void(Choice)> choose);

  /// A button that shows a color and asks for another one when it is clicked.
  void Bind(ColorButton& control, ColorDialog& dialog, Color GalleryProject::*field);

  /// Runs an edit that a control or a dialog asks for, and says that it was done.
  void Edit(const std::function<void(ProjectEditor&)>& edit);
  /// Shows the project in the controls; what the user types in is not disturbed where it says the same already.
  void Refresh();

  [[nodiscard]] const GalleryProject& Project() const { return editor_.Project(); }
  /// The fields that have a control, in the order of their binding.
  [[nodiscard]] const std::vector<const ProjectField*>& BoundFields() const { return fields_; }

 signals:
  /// Behind every edit, with the controls refreshed.
  void Edited();

 private:
  void BindText(QLineEdit& control, std::string GalleryProject::*field, QValidator* validator);

  ProjectEditor& editor_;
  MessageBoxPort& boxes_;
  std::vector<const ProjectField*> fields_;
  std::vector<std::function<void(const GalleryProject&)>> show_;
};

}  // namespace vantorium
