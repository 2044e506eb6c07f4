#include "core/generation/LocalTarget.h"

#include "core/generation/OutputNaming.h"
#include "core/generation/RunMessages.h"
#include "core/generation/SafeNames.h"
#include "env/FileOutput.h"
#include "env/NeighbourFile.h"
#include "env/PathText.h"
#include "image/JPEG.h"

#include <cerrno>

namespace vantorium::generation {
namespace {

std::filesystem::path NativeOrThrow(const RunState& run, const std::string& path) {
  auto native = run.files.Paths().ToNative(path);
  if (!native) env::ThrowFileAccess(path, ENODEV);
  return *std::move(native);
}

Refusal FileError(std::string text) {
  return {"File Error", std::move(text)};
}

bool MakeFolder(const RunState& run, const std::string& setting, const std::string& path) {
  return !LeavesFolder(setting) && run.files.MakePath(path);
}

}  // namespace

Delivery LocalTarget::MakeFolders() {
  if (!MakeFolder(run_, run_.ImageUrlPrefix, run_.LocalImagesDir)) {
    return Refusal{"Directory Error", "Unable to create Images Subfolder."};
  }
  if (!MakeFolder(run_, run_.ThumbUrlPrefix, run_.LocalThumbsDir)) {
    return Refusal{"Directory Error", "Unable to create Thumbnails Subfolder."};
  }
  return {};
}

bool LocalTarget::ImageExists(const ImageRunInfo& image) {
  return run_.files.PathExists(LocalImagePath(run_, image));
}

bool LocalTarget::ThumbnailExists(const ImageRunInfo& image) {
  return run_.files.PathExists(LocalThumbnailPath(run_, image));
}

std::string LocalTarget::ImageSizeText(const ImageRunInfo& image) {
  return run_.files.GetFileSizeText(LocalImagePath(run_, image));
}

Delivery LocalTarget::CopyImage(const ImageRunInfo& image) {
  const bool copied = IsPlainFileName(image.FileName) &&
                      run_.files.CopyLocalFile(image.Path, LocalImagePath(run_, image), /*overwrite=*/true);
  if (!copied) return FileError(UnableToCopy(run_.Shown(image.Path)));
  return {};
}

Delivery LocalTarget::StoreImage(ImageRunInfo& image, std::string_view jpeg) {
  if (!IsPlainFileName(image.FileName)) return FileError(UnableToCopy(run_.Shown(image.Path)));
  image::WriteJPEGFile(NativeOrThrow(run_, LocalImagePath(run_, image)), jpeg);
  run_.files.CopyFileTimes(image.Path, LocalImagePath(run_, image));
  image.FileSize = env::FileSizeText(jpeg.size());
  return {};
}

Delivery LocalTarget::StoreThumbnail(const ImageRunInfo& image, std::string_view jpeg) {
  if (!IsPlainFileName(image.FileName) || LeavesFolder(ThumbnailFileName(run_.project, image))) {
    return FileError(UnableToCreateThumbnail(run_.Shown(image.Path)));
  }
  image::WriteJPEGFile(NativeOrThrow(run_, LocalThumbnailPath(run_, image)), jpeg);
  return {};
}

Delivery LocalTarget::CopyAuxiliary(const std::string& source, const std::string& name) {
  const bool copied =
      IsPlainFileName(name) && run_.files.CopyLocalFile(source, run_.LocalImagesDir + name, /*overwrite=*/true);
  if (!copied) return FileError(UnableToCopy(run_.Shown(source)));
  return {};
}

Delivery LocalTarget::StoreIndexPage(std::string_view page) {
  WritePage(run_.IndexFileName, page);
  return {};
}

Delivery LocalTarget::StoreThumbnailPage(std::int32_t number, std::string_view page) {
  WritePage(ThumbnailPageName(run_.project, number), page);
  return {};
}

Delivery LocalTarget::StoreWrapperPage(const std::string& listText, std::string_view page) {
  const std::string name = WrapperPageName(run_.project, listText);
  if (!IsPlainFileName(name)) env::ThrowFileAccess(name, EACCES);
  WritePage(name, page);
  return {};
}

void LocalTarget::WritePage(const std::string& name, std::string_view page) const {
  if (LeavesFolder(name)) env::ThrowFileAccess(name, EACCES);
  env::WriteFileWhole(NativeOrThrow(run_, run_.OutputFolder + name), page);
}

}  // namespace vantorium::generation
