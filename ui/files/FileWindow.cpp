#include "ui/files/FileWindow.h"

#include "ui/files/FilePreviewPane.h"
#include "ui/files/FolderPathBox.h"
#include "ui/model/dialogs/DialogPlace.h"
#include "ui/model/files/FileFilters.h"
#include "ui/qt/QtText.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

namespace vantorium::ui {
namespace {

constexpr int kLeastNameWidth = 120;

/// Qt reads the patterns from the last pair of parentheses and shows the text before it.
QString NameFilter(const FileFilter& filter) {
  QStringList patterns;
  for (const std::string& pattern : filter.patterns) patterns << ToQt(pattern);
  return ToQt(filter.description) + '(' + patterns.join(' ') + ')';
}

}  // namespace

FileWindow::FileWindow(const FileDialogRequest& request, const env::mFileFunctions& files, env::MessageBoxPort& boxes,
                       const std::filesystem::path& home, QWidget* parent)
    : QFileDialog(parent), files_(files), limit_(boxes), choice_(request, files, boxes) {
  setObjectName("frmFileBrowser");
  setWindowTitle(ToQt(request.title));
  SetUp(request);
  SetUpFilters(request);
  SetUpLayout(request);
  FollowSelection();
  Begin(request, home);
}

void FileWindow::SetUp(const FileDialogRequest& request) {
  setOption(QFileDialog::DontUseNativeDialog);
  setOption(QFileDialog::HideNameFilterDetails);
  setOption(QFileDialog::ReadOnly, request.open);  // no renaming or deleting while opening
  setAcceptMode(request.open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
  setFileMode(QFileDialog::AnyFile);  // OK checks whether the file must exist
  setLabelText(QFileDialog::Accept, ToQt(AcceptButtonText(request)));
  setLabelText(QFileDialog::Reject, "Cancel");

  // The parts of QFileDialog, by Qt's object names.
  model_ = findChild<QFileSystemModel*>("qt_filesystem_model");
  view_ = findChild<QAbstractItemView*>("listView");
  name_ = findChild<QLineEdit*>("fileNameEdit");
  ok_ =
      findChild<QDialogButtonBox*>("buttonBox")->button(request.open ? QDialogButtonBox::Open : QDialogButtonBox::Save);
  if (!request.multiSelect) return;
  view_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  findChild<QAbstractItemView*>("treeView")->setSelectionMode(QAbstractItemView::ExtendedSelection);
}

void FileWindow::SetUpFilters(const FileDialogRequest& request) {
  QStringList filters;
  for (const FileFilter& filter : ParseFileFilters(request.filter)) filters << NameFilter(filter);
  setNameFilters(filters);
  const auto index = static_cast<qsizetype>(request.filterIndex) - 1;
  if (index >= 0 && index < filters.size()) selectNameFilter(filters[index]);
}

void FileWindow::SetUpLayout(const FileDialogRequest& request) {
  auto* const native = findChild<QComboBox*>("lookInCombo");
  auto* const folder = new FolderPathBox(files_.Paths(), this);
  delete layout()->replaceWidget(native, folder);
  native->hide();
  findChild<QLabel*>("lookInLabel")->setBuddy(folder);
  setTabOrder(native, folder);
  folder->Show(model_->rootPath());
  connect(model_, &QFileSystemModel::rootPathChanged, folder, &FolderPathBox::Show);
  connect(folder, &FolderPathBox::Chosen, this, [this](const QString& path) { setDirectory(path); });

  auto* const grid = qobject_cast<QGridLayout*>(layout());
  preview_ = new FilePreviewPane(files_, request.preview, this);
  grid->addWidget(preview_, 1, grid->columnCount());
  resize(request.preview ? QSize(860, 480) : QSize(680, 460));
}

void FileWindow::FollowSelection() {
  selectionChange_.setSingleShot(true);
  connect(&selectionChange_, &QTimer::timeout, this, &FileWindow::TellSelection);
  const auto* const selection = view_->selectionModel();
  const auto changed = [this] { selectionChange_.start(0); };
  connect(selection, &QItemSelectionModel::selectionChanged, this, changed);
  connect(selection, &QItemSelectionModel::currentChanged, this, changed);
  connect(name_, &QLineEdit::editingFinished, this, &FileWindow::ShowSurfaces);
  connect(name_, &QLineEdit::textEdited, this, [this] {
    limit_.Typed(NameLength());
    RefreshOk();
  });
  ok_->installEventFilter(this);
  connect(model_, &QFileSystemModel::rootPathChanged, this, &FileWindow::EnterFolder, Qt::QueuedConnection);
  connect(model_, &QFileSystemModel::directoryLoaded, this, &FileWindow::TakeLoadedFolder, Qt::QueuedConnection);
}

void FileWindow::Begin(const FileDialogRequest& request, const std::filesystem::path& home) {
  const DialogPlace place = PlaceOf(request, files_.Paths(), home);
  setDirectory(ToQt(place.folder.string()));
  if (!place.fileName.empty()) selectFile(ToQt(place.fileName));
  name_->setFocus();
  name_->selectAll();
}

/// Replaces QFileDialog's handling of OK, which knows neither path text nor this program's message boxes.
void FileWindow::accept() {
  if (selectionChange_.isActive()) TellSelection();
  if (!limit_.AllowsOk()) return;
  switch (choice_.Ok(FolderText(), FromQt(name_->text()))) {
    case FileChoice::Step::Stay:
      return;
    case FileChoice::Step::EnterFolder:
      setDirectory(ToQt(files_.Paths().ToNative(choice_.Folder()).value_or("/").string()));
      name_->clear();
      return;
    case FileChoice::Step::Accept:
      QDialog::accept();  // NOLINT(bugprone-parent-virtual-call): QFileDialog would judge the names itself
  }
}

/// QFileDialog enables the button whenever there is a name; this disables it again if the text is too long.
bool FileWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == ok_ && event->type() == QEvent::EnabledChange && !limit_.AllowsOk()) ok_->setEnabled(false);
  return QFileDialog::eventFilter(watched, event);
}

std::string FileWindow::FolderText() const {
  const QString folder = model_->rootPath();
  return files_.Paths().ToText(FromQt(folder.isEmpty() ? "/" : folder));
}

std::size_t FileWindow::NameLength() const {
  return static_cast<std::size_t>(name_->text().size());
}

void FileWindow::TellSelection() {
  selectionChange_.stop();
  const QModelIndex current = view_->selectionModel()->currentIndex().siblingAtColumn(0);
  const QString path = current.data(QFileSystemModel::FilePathRole).toString();
  const bool isFile = current.isValid() && !QFileInfo(path).isDir();
  const std::string file = isFile ? files_.Paths().ToText(FromQt(path)) : std::string();
  if (isFile) choice_.Browsed(file);
  preview_->Show(file);
  limit_.SelectionChanged(NameLength());
  RefreshOk();
}

void FileWindow::ShowSurfaces() {
  const QString text = ToQt(choice_.WithSurfaces(FromQt(name_->text())));
  if (text == name_->text()) return;
  view_->clearSelection();  // otherwise the selected file would put its name into the box
  name_->setText(text);
}

void FileWindow::RefreshOk() {
  ok_->setEnabled(limit_.AllowsOk() && !name_->text().isEmpty());
}

/// Hides the completions, which are those of the previous folder.
void FileWindow::EnterFolder(const QString& folder) {
  if (QCompleter* completer = name_->completer()) completer->popup()->hide();
  if (loadedFolders_.contains(folder)) FitColumns();
}

/// Fits the columns on the first load only: a folder is loaded again when its files change, and then the user's widths
/// stay.
void FileWindow::TakeLoadedFolder(const QString& folder) {
  if (loadedFolders_.contains(folder)) return;
  loadedFolders_.insert(folder);
  if (folder == model_->rootPath()) FitColumns();
}

/// Gives the names the width that the other columns leave.
void FileWindow::FitColumns() {
  auto& details = *findChild<QTreeView*>("treeView");
  int others = 0;
  for (int column = 1; column < model_->columnCount(); ++column) {
    details.resizeColumnToContents(column);
    others += details.columnWidth(column);
  }
  details.setColumnWidth(0, std::max(details.viewport()->width() - others, kLeastNameWidth));
}

}  // namespace vantorium::ui
