#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <string>

namespace vantorium {

/// Name of an image's output file: the list text and the extension of the source.
[[nodiscard]] std::string BuildFileName(const std::string& listText, const std::string& sourcePath);

/// Name of thumbnail page `page`.
[[nodiscard]] std::string ThumbnailPageName(const GalleryProject& project, std::int32_t page);

/// Name of the wrapper page of the image with that list text.
[[nodiscard]] std::string WrapperPageName(const GalleryProject& project, const std::string& listText);

/// Name of an image's thumbnail file.
[[nodiscard]] std::string ThumbnailFileName(const GalleryProject& project, const ImageRunInfo& image);

/// Where a run writes an image's file on this machine, path text: in the images folder, on the way to a server in the
/// temporary folder itself.
[[nodiscard]] std::string LocalImagePath(const RunState& run, const ImageRunInfo& image);

/// The same for its thumbnail, which has its folder in both.
[[nodiscard]] std::string LocalThumbnailPath(const RunState& run, const ImageRunInfo& image);

/// A folder setting as addresses show it: slashes, one at the end.
[[nodiscard]] std::string UrlFolder(const std::string& folder);

/// Where an image's file is found from a page: in the images folder, in Preview the source file's own address.
[[nodiscard]] std::string ImageUrl(const RunState& run, std::int32_t image);

/// Where a link to an image leads: its wrapper page, without wrapper pages its file.
[[nodiscard]] std::string ImageTarget(const RunState& run, std::int32_t image);

/// The "file://" address of a source file, a native path with slashes and nothing else done to it.
[[nodiscard]] std::string SourceUrl(const RunState& run, std::int32_t image);

}  // namespace vantorium
