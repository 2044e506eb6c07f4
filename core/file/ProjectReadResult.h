#pragma once

namespace vantorium {

/// How the reading of a project file, or of a section of it, ended.
enum class ReadResult {
  Complete,
  NoProject,
  NoGallery,
  NoLayout,
  InvalidThumbnailIndex,
  NoThumbnailPage,
  NoArrangement,
  NoPageLinks,
  ImageRefused  ///< the user has been told already
};

/// The reason that the user is given; empty for the results that need none.
[[nodiscard]] const char* ReasonOf(ReadResult result);

}  // namespace vantorium
