#pragma once

namespace vantorium::core {

/// The result of reading a project file or a section of it.
enum class ReadResult {
  Complete,
  NoProject,
  NoGallery,
  NoLayout,
  InvalidThumbnailIndex,
  NoThumbnailPage,
  NoArrangement,
  NoPageLinks,
  ImageRefused  ///< the user has already been told
};

/// Returns the reason to show to the user, empty for results that need none.
[[nodiscard]] const char* ReasonOf(ReadResult result);

}  // namespace vantorium::core
