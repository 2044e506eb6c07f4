#include "ui/files/FilePreviewPane.h"

#include "core/ImageFormats.h"
#include "env/PathText.h"
#include "env/mFileFunctions.h"
#include "image/JPEG.h"
#include "ui/files/PreviewLoader.h"
#include "ui/files/ReadPictureFile.h"
#include "ui/files/frmPreview.h"
#include "ui/model/main/ImageListTexts.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/DevicePixels.h"
#include "ui_frmFileBrowser.h"

namespace vantorium::ui {

FilePreviewPane::FilePreviewPane(const env::mFileFunctions& files, bool wanted, QWidget* parent)
    : QWidget(parent), files_(files), ui_(std::make_unique<Ui::frmFileBrowser>()), loader_(new PreviewLoader(this)) {
  setObjectName("extendedArea");
  ui_->setupUi(this);
  setFixedWidth(ui_->pbPreview->maximumWidth() + 20);
  setVisible(wanted);
  ui_->checkPreview->setChecked(wanted);
  connect(ui_->checkPreview, &QCheckBox::toggled, this, &FilePreviewPane::Refresh);
  connect(ui_->pbPreview, &StretchedPicture::Clicked, this, &FilePreviewPane::ShowInFull);
  connect(loader_, &PreviewLoader::Loaded, this, [this](const QImage& picture) {
    if (picture.isNull()) Clear();
    ui_->pbPreview->Show(picture);
  });
}

FilePreviewPane::~FilePreviewPane() = default;

void FilePreviewPane::Show(const std::string& file) {
  if (file == file_) return;
  file_ = file;
  Refresh();
}

void FilePreviewPane::Refresh() {
  loader_->Cancel();
  const auto native = files_.Paths().ToNative(file_);
  if (file_.empty() || !native || !ui_->checkPreview->isChecked()) {
    Clear();
  } else if (core::IsSupportedImageExtension(env::GetFileExtension(file_))) {
    ShowJPEG(*native);
  } else {
    ShowOther(*native);
  }
}

void FilePreviewPane::Clear() {
  ui_->pbPreview->Show({});
  ui_->pbDummy->clear();
  ui_->lblSize->clear();
}

/// Shows the size at once; the picture of a large photograph follows.
void FilePreviewPane::ShowJPEG(const std::filesystem::path& native) {
  std::int32_t width = 0;
  std::int32_t height = 0;
  if (!image::ReadJPEGSize(native, width, height)) return Clear();
  ShowSize(width, height);
  const QSize box = DevicePixels(*ui_->pbPreview);
  loader_->Load(native, {box.width(), box.height()});
}

void FilePreviewPane::ShowOther(const std::filesystem::path& native) {
  const QImage picture = ReadPictureFile(native);
  if (picture.isNull()) return Clear();
  ui_->pbDummy->setPixmap(QPixmap::fromImage(picture));
  ui_->pbPreview->Show(picture);
  ShowSize(picture.width(), picture.height());
}

void FilePreviewPane::ShowSize(int width, int height) {
  std::error_code error;
  const auto bytes = std::filesystem::file_size(files_.Paths().ToNative(file_).value_or(""), error);
  if (error) return Clear();
  ui_->lblSize->setText(ToQt(ImageSizeText(width, height, bytes)));
}

void FilePreviewPane::ShowInFull() {
  if (file_.empty() || !ui_->checkPreview->isChecked()) return;
  frmPreview preview(files_.Paths(), window());
  preview.SetPicture(env::GetFileName(file_) + ' ' + FromQt(ui_->lblSize->text()), file_);
  preview.exec();
}

}  // namespace vantorium::ui
