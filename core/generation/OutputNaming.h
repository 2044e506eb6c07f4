#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <string>

namespace vantorium::generation {

/// Name of an image's output file: the list text and the extension of the source.
[[nodiscard]] std::string BuildFileName(const std::string& listText, const std::string& sourcePath);

/// Returns what is known of image `number` from the list alone: its number, its path and the name of its file.
[[nodiscard]] ImageRunInfo InfoOfImage(const core::ImageList& images, std::size_t number);

/// Name of thumbnail page `page`.
[[nodiscard]] std::string ThumbnailPageName(const core::GalleryProject& project, std::int32_t page);

/// Name of the wrapper page of the image with list text `listText`.
[[nodiscard]] std::string WrapperPageName(const core::GalleryProject& project, const std::string& listText);

/// Name of an image's thumbnail file.
[[nodiscard]] std::string ThumbnailFileName(const core::GalleryProject& project, const ImageRunInfo& image);

/// Local path (path text) of an image's output file: in the images folder or, when publishing, directly in the
/// temporary folder.
[[nodiscard]] std::string LocalImagePath(const RunState& run, const ImageRunInfo& image);

/// The same for the thumbnail, which is always in the thumbnails folder.
[[nodiscard]] std::string LocalThumbnailPath(const RunState& run, const ImageRunInfo& image);

/// Returns a folder setting as used in URLs: with forward slashes, ending in one.
[[nodiscard]] std::string UrlFolder(const std::string& folder);

/// URL of an image's file in a page: in the images folder or, in Preview, the source file.
[[nodiscard]] std::string ImageUrl(const RunState& run, std::int32_t image);

/// Target of a link to an image: its wrapper page, or its file if there are no wrapper pages.
[[nodiscard]] std::string ImageTarget(const RunState& run, std::int32_t image);

/// The "file://" URL of a source file: its native path with slashes, without any encoding.
[[nodiscard]] std::string SourceUrl(const RunState& run, std::int32_t image);

}  // namespace vantorium::generation
