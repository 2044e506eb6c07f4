#include "core/generation/ServerTarget.h"

#include "core/generation/OutputNaming.h"
#include "core/generation/RunMessages.h"
#include "core/generation/SafeNames.h"
#include "image/JPEG.h"
#include "publish/FTPPath.h"

namespace vantorium::generation {
namespace {

const char kTransferError[] = "FTP File Error";

}  // namespace

std::string ServerTarget::RemoteImagesDir() const {
  return publish::RelativeToSession(order_.RemoteFolder + run_.ImageUrlPrefix);
}

std::string ServerTarget::RemoteThumbsDir() const {
  return publish::RelativeToSession(order_.RemoteFolder + run_.ThumbUrlPrefix);
}

std::string ServerTarget::RemoteThumbnail(const ImageRunInfo& image) const {
  return RemoteThumbsDir() + ThumbnailFileName(run_.project, image);
}

Delivery ServerTarget::MakeFolders() {
  if (auto refusal = local_.MakeFolders()) return refusal;
  if (!ftp_.FTPCreateDirectoryPath(RemoteImagesDir())) {
    return Refusal{"FTP Directory Error", "Unable to create Images Subfolder."};
  }
  if (!ftp_.FTPCreateDirectoryPath(RemoteThumbsDir())) {
    return Refusal{"FTP Directory Error", "Unable to create Thumbnails Subfolder."};
  }
  return {};
}

bool ServerTarget::ImageExists(const ImageRunInfo& image) {
  return ftp_.FTPFileExists(RemoteImagesDir() + image.FileName);
}

bool ServerTarget::ThumbnailExists(const ImageRunInfo& image) {
  return ftp_.FTPFileExists(RemoteThumbnail(image));
}

std::string ServerTarget::ImageSizeText(const ImageRunInfo& image) {
  return ftp_.FTPGetFileSize(RemoteImagesDir() + image.FileName);
}

Delivery ServerTarget::CopyImage(const ImageRunInfo& image) {
  const bool sent = IsPlainFileName(image.FileName) &&
                    ftp_.FTPCopyFile(image.Path, RemoteImagesDir() + image.FileName, /*overwrite=*/true);
  if (!sent) return Refusal{kTransferError, UnableToCopy(run_.Shown(image.Path))};
  return {};
}

Delivery ServerTarget::StoreImage(ImageRunInfo& image, std::string_view jpeg) {
  const std::string copy = LocalImagePath(run_, image);
  const auto native = run_.files.Paths().ToNative(copy);
  if (!IsPlainFileName(image.FileName) || !native) {
    return Refusal{"File Error", UnableToCopyTemporarily(run_.Shown(image.Path))};
  }
  image::WriteJPEGFile(*native, jpeg);
  run_.files.CopyFileTimes(image.Path, copy);
  image.FileSize = env::FileSizeText(jpeg.size());
  if (!ftp_.FTPCopyFile(copy, RemoteImagesDir() + image.FileName, /*overwrite=*/true)) {
    return Refusal{kTransferError, UnableToCopy(run_.Shown(image.Path))};
  }
  return {};
}

Delivery ServerTarget::StoreThumbnail(const ImageRunInfo& image, std::string_view jpeg) {
  if (auto refusal = local_.StoreThumbnail(image, jpeg)) return refusal;
  return Move(LocalThumbnailPath(run_, image), RemoteThumbnail(image), UnableToCreateThumbnail(run_.Shown(image.Path)));
}

Delivery ServerTarget::CopyAuxiliary(const std::string& source, const std::string& name) {
  const bool sent = IsPlainFileName(name) && ftp_.FTPCopyFile(source, RemoteImagesDir() + name, /*overwrite=*/true);
  if (!sent) return Refusal{kTransferError, UnableToCopy(run_.Shown(source))};
  return {};
}

Delivery ServerTarget::StoreIndexPage(std::string_view page) {
  if (auto refusal = local_.StoreIndexPage(page)) return refusal;
  return Move(run_.OutputFolder + run_.IndexFileName,
              publish::RelativeToSession(order_.RemoteFolder + order_.RemoteIndexFileName),
              "Unable to create the Gallery Index File.");
}

Delivery ServerTarget::StoreThumbnailPage(std::int32_t number, std::string_view page) {
  if (auto refusal = local_.StoreThumbnailPage(number, page)) return refusal;
  return SendPage(ThumbnailPageName(run_.project, number));
}

Delivery ServerTarget::StoreWrapperPage(const std::string& listText, std::string_view page) {
  if (auto refusal = local_.StoreWrapperPage(listText, page)) return refusal;
  return SendPage(WrapperPageName(run_.project, listText));
}

Delivery ServerTarget::SendPage(const std::string& name) {
  const std::string remote = publish::RelativeToSession(order_.RemoteFolder + name);
  return Move(run_.OutputFolder + name, remote, UnableToCreatePage(remote));
}

Delivery ServerTarget::Move(const std::string& localPath, const std::string& remotePath, const std::string& text) {
  if (!ftp_.FTPCopyFile(localPath, remotePath, /*overwrite=*/true)) return Refusal{kTransferError, text};
  run_.files.DeleteLocalFile(localPath);
  return {};
}

}  // namespace vantorium::generation
