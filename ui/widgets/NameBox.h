#pragma once

#include "ui/model/dialogs/FileNameSettings.h"

#include <QLineEdit>
#include <QObject>

namespace vantorium {

/// The control that edits a name of a gallery's files or frames: a line, or a list that takes other texts too.
class NameBox : public QObject {
  Q_OBJECT

 public:
  /// The control of that name is on `form`, to which this belongs. `name` lives as long.
  NameBox(QWidget& form, const NameField& name);

  /// Is no edit.
  void Show(const GalleryProject& project);
  void Store(ProjectEditor& editor) const;

 signals:
  /// The user has changed the text.
  void Edited();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const NameField& name_;
  QLineEdit* line_;
};

}  // namespace vantorium
