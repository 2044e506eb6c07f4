#include "core/generation/changes/GalleryNames.h"

#include "core/generation/OutputNaming.h"
#include "core/generation/RunOutputs.h"
#include "publish/FTPPath.h"

#include <filesystem>

namespace vantorium::generation {

std::string NameInGallery(const std::string& path) {
  return std::filesystem::path(publish::RelativeToSession(path)).lexically_normal().string();
}

std::string NameOfImage(const RunState& run, const ImageRunInfo& image) {
  return NameInGallery(run.ImageUrlPrefix + image.FileName);
}

std::string NameOfThumbnail(const RunState& run, const ImageRunInfo& image) {
  return NameInGallery(run.ThumbUrlPrefix + ThumbnailFileName(run.project, image));
}

std::string NameOfAuxiliary(const RunState& run, const std::string& name) {
  return NameInGallery(run.ImageUrlPrefix + name);
}

std::string NameOfIndexPage(const RunOrder& order) {
  return NameInGallery(SendsToServer(order.Mode) ? order.RemoteIndexFileName : order.IndexFileName);
}

std::vector<std::string> NamesOfGallery(const RunState& run, const RunOrder& order) {
  std::vector<std::string> names = {NameOfIndexPage(order)};
  for (std::int32_t page = 1; page <= run.ThumbnailPageCount; ++page) {
    names.push_back(NameInGallery(ThumbnailPageName(run.project, page)));
  }
  const bool wrappers = core::IsOn(run.project.checkImageWrapperUse);
  for (const ImageRunInfo& image : run.RunInfo) {
    names.push_back(NameOfImage(run, image));
    names.push_back(NameOfThumbnail(run, image));
    if (wrappers) names.push_back(NameInGallery(WrapperPageName(run.project, run.ListText(image.Number))));
  }
  for (const AuxiliaryFile& file : AuxiliaryFilesOf(run)) names.push_back(NameOfAuxiliary(run, file.name));
  return names;
}

}  // namespace vantorium::generation
