#pragma once

#include "core/generation/ImageRunInfo.h"

#include <optional>
#include <string>
#include <string_view>

namespace vantorium {

/// Why a file could not be put in its place, as the user is told.
struct Refusal {
  std::string title;
  std::string text;
};

using Delivery = std::optional<Refusal>;  ///< nothing when it went well

/// Which spelling the message about an auxiliary file has.
enum class AuxiliarySpelling { File, file };

/// That message.
[[nodiscard]] inline std::string UnableToCopyAuxiliary(const std::string& source, AuxiliarySpelling spelling) {
  return std::string("Unable to copy the ") + (spelling == AuxiliarySpelling::File ? "File" : "file") + " \"" + source +
         "\".";
}

/// Where a run puts the files it makes: a folder of this machine, or a server by way of the temporary folder. Names are
/// those of the gallery; a name that would lead out of its folder is refused like a file that can't be written. What is
/// stored appears under its name only when it is whole.
class GalleryTarget {
 public:
  virtual ~GalleryTarget() = default;

  [[nodiscard]] virtual Delivery MakeFolders() = 0;

  /// Whether the next two questions may be asked ahead of an image's turn. To a server they are a part of the run's
  /// dialogue, and each is asked once.
  [[nodiscard]] virtual bool MayAskAhead() const = 0;
  [[nodiscard]] virtual bool ImageExists(const ImageRunInfo& image) = 0;
  [[nodiscard]] virtual bool ThumbnailExists(const ImageRunInfo& image) = 0;
  /// Size of an image at the target as text. Throws RuntimeFailure when it can't be read.
  [[nodiscard]] virtual std::string ImageSizeText(const ImageRunInfo& image) = 0;

  /// The source file as it is.
  [[nodiscard]] virtual Delivery CopyImage(const ImageRunInfo& image) = 0;
  /// An encoded image under the source's file times; sets the image's FileSize. Throws RuntimeFailure JPEGLibrary when
  /// it can't be written.
  [[nodiscard]] virtual Delivery StoreImage(ImageRunInfo& image, std::string_view jpeg) = 0;
  /// An encoded thumbnail. Throws as StoreImage.
  [[nodiscard]] virtual Delivery StoreThumbnail(const ImageRunInfo& image, std::string_view jpeg) = 0;

  /// A backdrop or link graphic into the images folder under `name`. `source` is path text.
  [[nodiscard]] virtual Delivery CopyAuxiliary(const std::string& source, const std::string& name,
                                               AuxiliarySpelling spelling) = 0;

  /// The bytes of a page. Throws RuntimeFailure FileAccess when it can't be written.
  [[nodiscard]] virtual Delivery StoreIndexPage(std::string_view page) = 0;
  [[nodiscard]] virtual Delivery StoreThumbnailPage(std::int32_t number, std::string_view page) = 0;
  [[nodiscard]] virtual Delivery StoreWrapperPage(const std::string& listText, std::string_view page) = 0;
};

}  // namespace vantorium
