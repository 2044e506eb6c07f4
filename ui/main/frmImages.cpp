#include "ui/main/frmImages.h"

#include "core/Choices.h"
#include "core/RandomNumbers.h"
#include "ui/dialogs/frmFind.h"
#include "ui/dialogs/frmInvalidImage.h"
#include "ui/dialogs/frmRename.h"
#include "ui/dialogs/frmShuffle.h"
#include "ui/files/frmAddFoldersProcess.h"
#include "ui/main/UprightQuestion.h"
#include "ui/model/dialogs/RenameModel.h"
#include "ui/model/files/AddFiles.h"
#include "ui/model/files/FolderWalk.h"
#include "ui/model/files/ImageSizeLabel.h"
#include "ui/qt/QtText.h"
#include "ui_frmImages.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QSignalBlocker>

namespace vantorium::ui {

frmImages::frmImages(const Parts& parts, QWidget* parent)
    : QWidget(parent),
      parts_(parts),
      ui_(std::make_unique<Ui::frmImages>()),
      upright_(new UprightQuestion({parts.project, parts.paths, parts.boxes, [this] { return MayAsk(); }}, this)) {
  ui_->setupUi(this);
  connect(upright_, &UprightQuestion::Accepted, this, &frmImages::TurnUpright);
  ui_->lvImagesList->Attach(parts_.project.images, parts_.paths);
  ConnectList();
  ConnectPreview();
  ConnectButtons();
  RefreshList();
  RefreshPreview();
}

frmImages::~frmImages() = default;

void frmImages::ConnectList() {
  ImageListView* list = ui_->lvImagesList;
  connect(list, &ImageListView::CurrentRowChanged, this, [this] {
    RefreshPreview();
    emit CurrentChanged();
  });
  connect(list, &ImageListView::FullScreenAsked, this, &frmImages::AskForFullScreen);
  connect(list, &ImageListView::DeletePressed, this, [this] { Do([this] { parts_.images.RemoveSelected(); }); });
  connect(list, &ImageListView::InsertPressed, this, &frmImages::AddChosenFiles);
  connect(list, &ImageListView::Dropped, this,
          [this](const std::string& name, std::size_t target) { Do([&] { parts_.images.Drop(name, target); }); });
  parts_.binder.Bind(*ui_->comboImagesSortingOrder, &core::GalleryProject::comboImagesSortingOrder,
                     [this](core::Choice index) { Do([&] { parts_.images.SetSortingOrder(index); }); });
}

void frmImages::ConnectPreview() {
  connect(ui_->pbImagesPreview, &FittedPicture::DoubleClicked, this, &frmImages::AskForFullScreen);
  connect(ui_->pbImagesPreview, &FittedPicture::Failed, this, &frmImages::AskAboutInvalidImage);
  connect(ui_->checkImagesPreview, &QCheckBox::toggled, this, [this](bool checked) {
    parts_.preferences.checkImagesPreview = core::FlagOf(checked);
    RefreshPreview();
  });
}

void frmImages::ConnectButtons() {
  const auto connectTo = [this](QAbstractButton* button, void (frmImages::*slot)()) {
    connect(button, &QAbstractButton::clicked, this, slot);
  };
  connectTo(ui_->btnImagesAddFiles, &frmImages::AddChosenFiles);
  connectTo(ui_->btnImagesAddFolder, &frmImages::AddChosenFolders);
  connectTo(ui_->btnImagesRename, &frmImages::Rename);
  connectTo(ui_->btnImagesDescriptions, &frmImages::DescriptionsAsked);
  connect(this, &frmImages::CurrentChanged, ui_->btnImagesRename,
          [this] { ui_->btnImagesRename->setEnabled(CurrentEntry() != nullptr); });
  connectTo(ui_->btnImagesFind, &frmImages::Find);
  connectTo(ui_->btnImagesShuffle, &frmImages::Shuffle);

  const auto connectOperation = [this](QAbstractButton* button, std::function<void()> operation) {
    connect(button, &QAbstractButton::clicked, this, [this, operation = std::move(operation)] { Do(operation); });
  };
  connectOperation(ui_->btnImagesRemove, [this] { parts_.images.RemoveSelected(); });
  connectOperation(ui_->btnImagesRemoveAll, [this] { parts_.images.RemoveAll(); });
  connectOperation(ui_->btnImagesMoveUp, [this] { parts_.images.MoveSelectedUp(); });
  connectOperation(ui_->btnImagesMoveDown, [this] { parts_.images.MoveSelectedDown(); });
}

// Shows the list again when the operation has finished: until then its rows and the view's may differ.
void frmImages::Do(const std::function<void()>& operation) {
  {
    const QScopedValueRollback guard(working_, true);
    parts_.binder.Edit([&](core::ProjectEditor&) { operation(); });
  }
  RefreshList();
  emit ListChanged();
}

void frmImages::RefreshList() {
  ui_->lvImagesList->Refresh();
  if (scrollTo_ != 0) ui_->lvImagesList->ScrollToPosition(scrollTo_);
  scrollTo_ = 0;
  const QSignalBlocker quiet(ui_->checkImagesPreview);
  ui_->checkImagesPreview->setChecked(core::IsOn(parts_.preferences.checkImagesPreview));
  emit CurrentChanged();
}

void frmImages::FollowProject() {
  upright_->ForgetProject();
}

void frmImages::ScrollIntoView(std::size_t position) {
  if (working_) {
    scrollTo_ = position;
  } else {
    ui_->lvImagesList->ScrollToPosition(position);
  }
}

void frmImages::RefreshPreview() {
  const core::ImageEntry* entry = CurrentEntry();
  const auto file = entry == nullptr ? std::nullopt : parts_.paths.ToNative(entry->SourcePath);
  const image::Corrections corrections = core::CorrectionsOf(parts_.project.settings);
  ui_->lblImagesSize->setText(ToQt(ImageSizeLabel(file, corrections.upright)));
  if (entry == nullptr || !core::IsOn(parts_.preferences.checkImagesPreview)) {
    ui_->pbImagesPreview->Clear();
  } else {
    ui_->pbImagesPreview->Load(file, corrections);
  }
}

const core::ImageEntry* frmImages::CurrentEntry() const {
  const core::ImageList& images = parts_.project.images;
  return images.Current() == 0 ? nullptr : &images.Entry(images.Current());
}

void frmImages::TurnUpright() {
  parts_.binder.Edit(
      [](core::ProjectEditor& editor) { editor.Set(&core::GalleryProject::checkImagesUpright, core::Flag{1}); });
  RefreshPreview();
}

void frmImages::AskForFullScreen() {
  if (const core::ImageEntry* entry = CurrentEntry()) emit FullScreenPreviewAsked(entry->ImageName, entry->SourcePath);
}

/// Asks nothing in the middle of something else, such as a run: the answer could change the project under it.
bool frmImages::MayAsk() const {
  return !working_ && QApplication::activeModalWidget() == nullptr && window()->isEnabled();
}

// If the user may not be asked now, the preview stays empty.
void frmImages::AskAboutInvalidImage() {
  const core::ImageEntry* entry = CurrentEntry();
  if (entry == nullptr || !MayAsk()) return;
  frmInvalidImage question(parts_.shell, this);
  switch (question.ShowDialog(entry->ImageName)) {
    case InvalidImageAnswer::Remove:
      return Do([this] { parts_.images.RemoveCorrupted(); });
    case InvalidImageAnswer::Retry:
      return RefreshPreview();
    case InvalidImageAnswer::Ignore:
      break;
  }
}

void frmImages::AddChosenFiles() {
  upright_->BeforeAdding();
  Do([this] {
    AddFiles({.browser = parts_.browser, .preferences = parts_.preferences, .images = parts_.images}).Run();
  });
  upright_->AfterAdding();
}

void frmImages::AddChosenFolders() {
  const auto folders = parts_.askForImageFolders();
  if (folders.empty()) return;
  parts_.preferences.ImageSourceFolder = folders.front();
  frmAddFoldersProcess progress(this);
  FolderWalk walk({.project = parts_.project,
                   .images = parts_.images,
                   .paths = parts_.paths,
                   .boxes = parts_.boxes,
                   .loop = parts_.loop});
  upright_->BeforeAdding();
  Do([&] { walk.Run(folders, progress); });
  RefreshPreview();
  upright_->AfterAdding();
}

void frmImages::Rename() {
  RenameModel model;
  model.SetNameBase(CurrentEntry()->ImageName);  // without a current image the button is disabled
  if (frmRename(model, this).exec() != QDialog::Accepted) return;
  Do([&] { parts_.images.Rename(model.GetNameBase(), model.Scope()); });
}

void frmImages::Find() {
  if (parts_.project.images.Empty()) return;
  if (frmFind(find_, this).exec() != QDialog::Accepted) return;
  Do([this] { parts_.images.FindByName(find_.Result); });
}

void frmImages::Shuffle() {
  frmShuffle progress(this);
  core::ClockSeededNumbers random(parts_.clock);
  Do([&] { parts_.images.Shuffle({.progress = progress, .eventLoop = parts_.loop, .random = random}); });
}

}  // namespace vantorium::ui
