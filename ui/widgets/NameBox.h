#pragma once

#include "ui/model/dialogs/FileNameSettings.h"

#include <QLineEdit>
#include <QObject>

namespace vantorium::ui {

/// Edits one name of a gallery's files or frames, in a line edit or an editable combo box.
class NameBox : public QObject {
  Q_OBJECT

 public:
  /// `form` has the control that `name` names, and becomes the parent. `name` must outlive this object.
  NameBox(QWidget& form, const NameField& name);

  /// Does not emit Edited.
  void Show(const core::GalleryProject& project);
  void Store(core::ProjectEditor& editor) const;

 signals:
  /// The user has changed the text.
  void Edited();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const NameField& name_;
  QLineEdit* line_;
};

}  // namespace vantorium::ui
