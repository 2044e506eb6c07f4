#include "ui/files/FolderPathBox.h"

#include "ui/model/files/Drives.h"
#include "ui/qt/QtText.h"

#include <QStyle>

namespace vantorium::ui {

FolderPathBox::FolderPathBox(const env::PathMap& paths, QWidget* parent) : QComboBox(parent), paths_(paths) {
  setObjectName("comboFolder");
  setAccessibleName("Folder");
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setMinimumContentsLength(20);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(this, &QComboBox::activated, this, [this](int index) { emit Chosen(itemData(index).toString()); });
}

void FolderPathBox::Show(const QString& native) {
  clear();
  const std::filesystem::path folder = FromQt(native.isEmpty() ? "/" : native);
  for (std::filesystem::path above = folder;; above = above.parent_path()) {
    Add(above);
    if (!above.has_relative_path()) break;
  }
  for (const Drive& drive : DriveFolders(paths_)) Add(drive.folder);
  setCurrentIndex(0);
}

void FolderPathBox::Add(const std::filesystem::path& native) {
  const QString folder = ToQt(native.string());
  if (findData(folder) >= 0) return;
  QString text = ToQt(paths_.Surface(paths_.ToText(native)));
  if (text.endsWith(':')) text += '\\';
  addItem(style()->standardIcon(native.has_relative_path() ? QStyle::SP_DirIcon : QStyle::SP_DriveHDIcon), text,
          folder);
}

}  // namespace vantorium::ui
