#include "ui/files/FolderTree.h"

#include "env/PathText.h"
#include "ui/model/dialogs/DialogPlace.h"
#include "ui/model/files/Drives.h"
#include "ui/qt/QtText.h"

#include <QDir>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QStyle>
#include <QTreeWidgetItemIterator>

namespace vantorium::ui {
namespace {

constexpr int kPath = Qt::UserRole;
constexpr int kLoaded = Qt::UserRole + 1;
constexpr int kLetter = Qt::UserRole + 2;

std::filesystem::path FolderOf(const QTreeWidgetItem& item) {
  return item.data(0, kPath).toByteArray().toStdString();
}

QString DriveText(const Drive& drive, bool showsLetter) {
  const QString letter = showsLetter ? QString(" (%1:)").arg(drive.letter) : QString();
  if (ToQt(drive.folder.string()) == QDir::homePath()) return "Home" + letter;
  if (!drive.folder.has_relative_path()) return "File System" + letter;
  return ToQt(drive.folder.filename().string()) + letter;
}

QStyle::StandardPixmap DriveIcon(const Drive& drive) {
  return ToQt(drive.folder.string()) == QDir::homePath() ? QStyle::SP_DirHomeIcon : QStyle::SP_DriveHDIcon;
}

}  // namespace

FolderTree::FolderTree(QWidget* parent) : QTreeWidget(parent) {
  setHeaderHidden(true);
  setUniformRowHeights(true);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(QHeaderView::ResizeToContents);  // a deep folder is reached by scrolling sideways
  connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { Load(*item); });
  connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item) {
    if (isChecked_) emit Checked(FolderOf(*item), item->checkState(0) == Qt::Checked);
  });
}

void FolderTree::ShowDrives(const env::PathMap& paths, const Folders& folders, IsChecked isChecked) {
  const QSignalBlocker blocker(this);
  paths_ = &paths;
  folders_ = &folders;
  isChecked_ = std::move(isChecked);
  clear();
  for (const Drive& drive : DriveFolders(paths)) {
    QTreeWidgetItem* const item = MakeItem(drive.folder, DriveText(drive, paths.ShowsLetters()));
    item->setIcon(0, style()->standardIcon(DriveIcon(drive)));
    item->setData(0, kLetter, QChar(drive.letter));
    addTopLevelItem(item);
  }
}

void FolderTree::SetSelectedPath(const std::string& text) {
  QTreeWidgetItem* item = DriveOf(text);
  if (item == nullptr) return;
  const std::filesystem::path drive = FolderOf(*item);
  const auto inside = NearestFolder(*paths_, text, drive).lexically_relative(drive);
  std::filesystem::path folder = drive;
  for (const std::filesystem::path& part : inside) {
    if (part == "." || part == "..") break;
    folder /= part;
    QTreeWidgetItem* const child = ChildOf(*item, folder);
    item->setExpanded(true);
    item = child;
  }
  item->setExpanded(true);
  setCurrentItem(item);
  scrollToItem(item, QAbstractItemView::PositionAtCenter);
}

std::string FolderTree::SelectedPath() const {
  const std::filesystem::path folder = SelectedFolder();
  if (folder.empty()) return {};
  const std::string text = paths_->ToText(folder);
  return text.ends_with(':') ? env::WithTrailingBackslash(text) : text;
}

std::filesystem::path FolderTree::SelectedFolder() const {
  return currentItem() == nullptr ? std::filesystem::path() : FolderOf(*currentItem());
}

void FolderTree::RefreshChecks() {
  if (!isChecked_) return;
  const QSignalBlocker blocker(this);
  for (QTreeWidgetItemIterator item(this); *item != nullptr; ++item) ShowCheck(**item);
  viewport()->update();
}

/// Scrolls again: an item that was scrolled to before the tree had its size may be out of sight.
void FolderTree::showEvent(QShowEvent* event) {
  QTreeWidget::showEvent(event);
  if (currentItem() != nullptr) scrollToItem(currentItem(), QAbstractItemView::PositionAtCenter);
}

QTreeWidgetItem* FolderTree::MakeItem(const std::filesystem::path& native, const QString& text) const {
  auto* const item = new QTreeWidgetItem({text});
  item->setIcon(0, style()->standardIcon(QStyle::SP_DirIcon));
  item->setData(0, kPath, QByteArray::fromStdString(native.string()));
  item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);  // until its subfolders are looked up
  ShowCheck(*item);
  return item;
}

void FolderTree::Load(QTreeWidgetItem& item) {
  if (item.data(0, kLoaded).toBool()) return;
  const QSignalBlocker blocker(this);
  item.setData(0, kLoaded, true);
  item.setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
  const std::filesystem::path folder = FolderOf(item);
  QList<QTreeWidgetItem*> children;
  for (const SubFolder& child : folders_->In(folder)) children << MakeItem(folder / child.name, ToQt(child.name));
  item.addChildren(children);
}

/// Returns the drive that the text names, or else the one that its path is on, or else the first.
QTreeWidgetItem* FolderTree::DriveOf(const std::string& text) const {
  const auto native = paths_->ToNative(text);
  const std::string mapped = native && native->is_absolute() ? paths_->ToText(*native) : std::string();
  for (const std::string& path : {text, mapped}) {
    if (path.size() < 2 || path[1] != ':') continue;
    for (int i = 0; i < topLevelItemCount(); ++i) {
      if (topLevelItem(i)->data(0, kLetter).toChar() == QChar(path[0]).toUpper()) return topLevelItem(i);
    }
  }
  return topLevelItem(0);
}

/// Adds a hidden folder to the tree when it is asked for.
QTreeWidgetItem* FolderTree::ChildOf(QTreeWidgetItem& item, const std::filesystem::path& native) {
  Load(item);
  for (int i = 0; i < item.childCount(); ++i) {
    if (FolderOf(*item.child(i)) == native) return item.child(i);
  }
  const QSignalBlocker blocker(this);
  item.addChild(MakeItem(native, ToQt(native.filename().string())));
  return item.child(item.childCount() - 1);
}

void FolderTree::ShowCheck(QTreeWidgetItem& item) const {
  if (isChecked_) item.setCheckState(0, isChecked_(FolderOf(item)) ? Qt::Checked : Qt::Unchecked);
}

}  // namespace vantorium::ui
