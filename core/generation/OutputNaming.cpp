#include "core/generation/OutputNaming.h"

#include "env/PathText.h"

namespace vantorium::generation {

std::string BuildFileName(const std::string& listText, const std::string& sourcePath) {
  return listText + env::GetFileExtension(sourcePath);
}

ImageRunInfo InfoOfImage(const core::ImageList& images, std::size_t number) {
  const core::ImageEntry& entry = images.Entry(number);
  return {.Number = static_cast<std::int32_t>(number),
          .Path = entry.SourcePath,
          .FileName = BuildFileName(entry.ImageName, entry.SourcePath)};
}

std::string ThumbnailPageName(const core::GalleryProject& project, std::int32_t page) {
  return project.textThumbnailPageSettingsFilePrefix + std::to_string(page) +
         project.comboThumbnailPageSettingsFileExtension;
}

std::string WrapperPageName(const core::GalleryProject& project, const std::string& listText) {
  return listText + project.comboImageWrapperSettingsFileExtension;
}

std::string ThumbnailFileName(const core::GalleryProject& project, const ImageRunInfo& image) {
  return project.textThumbnailImageSettingsFilePrefix + image.FileName;
}

std::string LocalImagePath(const RunState& run, const ImageRunInfo& image) {
  return (run.mode == GenerationMode::Publish ? run.OutputFolder : run.LocalImagesDir) + image.FileName;
}

std::string LocalThumbnailPath(const RunState& run, const ImageRunInfo& image) {
  return run.LocalThumbsDir + ThumbnailFileName(run.project, image);
}

std::string UrlFolder(const std::string& folder) {
  std::string url = env::WithSlashes(folder);
  if (!url.ends_with('/')) url += '/';
  return url;
}

std::string ImageUrl(const RunState& run, std::int32_t image) {
  if (run.mode == GenerationMode::Preview) return SourceUrl(run, image);
  return run.ImageUrlPrefix + run.Info(image).FileName;
}

std::string ImageTarget(const RunState& run, std::int32_t image) {
  if (core::IsOn(run.project.checkImageWrapperUse)) return WrapperPageName(run.project, run.ListText(image));
  return ImageUrl(run, image);
}

std::string SourceUrl(const RunState& run, std::int32_t image) {
  const std::string& path = run.Info(image).Path;
  const auto native = run.files.Paths().ToNative(path);
  return "file://" + (native ? native->string() : env::WithSlashes(path));
}

}  // namespace vantorium::generation
