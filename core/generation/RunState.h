#pragma once

#include "core/GalleryProject.h"
#include "core/ImageList.h"
#include "core/generation/GenerationMode.h"
#include "core/generation/ImageRunInfo.h"
#include "env/mFileFunctions.h"
#include "image/Watermark.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vantorium::generation {

/// The state of a run, which its page builders read. Images and pages are numbered from 1.
struct RunState {
  const core::GalleryProject& project;
  const core::ImageList& images;
  const env::mFileFunctions& files;
  const env::RegionalFormats& formats;
  GenerationMode mode = GenerationMode::Create;

  std::string ProjectFolder{};   ///< folder of the project file, path text
  std::string ProjectFile{};     ///< path text; empty for a project without a file
  std::string OutputFolder{};    ///< path text with a trailing backslash
  std::string IndexFileName{};   ///< inside OutputFolder
  std::string ImageUrlPrefix{};  ///< folder of the images in URLs, ends in a slash
  std::string ThumbUrlPrefix{};  ///< folder of the thumbnails in URLs, ends in a slash
  std::string LocalImagesDir{};  ///< path text with a trailing backslash
  std::string LocalThumbsDir{};  ///< path text with a trailing backslash

  std::shared_ptr<const image::WatermarkPainter> ImageWatermark{};      ///< null if images get none
  std::shared_ptr<const image::WatermarkPainter> ThumbnailWatermark{};  ///< null if thumbnails get none

  std::vector<ImageRunInfo> RunInfo{};  ///< element i - 1 is for image i
  std::int32_t ImageCount = 0;
  std::int32_t ThumbnailPageCount = 0;
  std::int32_t MaxImageWidth = 0;
  std::int32_t MaxImageHeight = 0;
  std::int32_t MaxThumbWidth = 0;
  std::int32_t MaxThumbHeight = 0;
  std::string DirectLinksText{};         ///< for the current thumbnail page
  env::CivilTime GalleryCreationTime{};  ///< local time

  [[nodiscard]] const ImageRunInfo& Info(std::int32_t image) const {
    return RunInfo.at(static_cast<std::size_t>(image) - 1);
  }
  /// The surface form of path text, for messages.
  [[nodiscard]] std::string Shown(const std::string& path) const { return files.Paths().Surface(path); }
  [[nodiscard]] const core::ImageEntry& Entry(std::int32_t image) const {
    return images.Entry(static_cast<std::size_t>(image));
  }
  /// The image's name in the list.
  [[nodiscard]] const std::string& ListText(std::int32_t image) const { return Entry(image).ImageName; }
};

}  // namespace vantorium::generation
