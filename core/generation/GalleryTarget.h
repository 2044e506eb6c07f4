#pragma once

#include "core/generation/ImageRunInfo.h"

#include <optional>
#include <string>
#include <string_view>

namespace vantorium::generation {

/// Why a file could not be delivered, as a message box shows it.
struct Refusal {
  std::string title;
  std::string text;
};

using Delivery = std::optional<Refusal>;  ///< nullopt on success

/// Where a run puts the files it makes: a local folder, or a server by way of the temporary folder. Names are those in
/// the gallery; a name that would lead out of its folder is refused like a file that cannot be written. A stored file
/// appears under its name only when it is complete.
class GalleryTarget {
 public:
  virtual ~GalleryTarget() = default;

  [[nodiscard]] virtual Delivery MakeFolders() = 0;

  /// Whether ImageExists and ThumbnailExists may be called ahead of an image's turn. With a server they are part of the
  /// run's dialogue, and each is called once.
  [[nodiscard]] virtual bool MayAskAhead() const = 0;
  [[nodiscard]] virtual bool ImageExists(const ImageRunInfo& image) = 0;
  [[nodiscard]] virtual bool ThumbnailExists(const ImageRunInfo& image) = 0;
  /// Returns the size of an image at the target as text. Throws RuntimeFailure if it cannot be read.
  [[nodiscard]] virtual std::string ImageSizeText(const ImageRunInfo& image) = 0;

  /// Whether the target already has the file that this run would make. HasImage then sets the image's FileSize.
  [[nodiscard]] virtual bool HasImage(ImageRunInfo& /*image*/) { return false; }
  [[nodiscard]] virtual bool HasThumbnail(const ImageRunInfo& /*image*/) { return false; }
  /// The same ahead of an image's turn: what HasImage and HasThumbnail will probably return. Asks no server.
  [[nodiscard]] virtual bool WillHaveImage(const ImageRunInfo& /*image*/) { return false; }
  [[nodiscard]] virtual bool WillHaveThumbnail(const ImageRunInfo& /*image*/) { return false; }

  /// Copies the source file unchanged.
  [[nodiscard]] virtual Delivery CopyImage(const ImageRunInfo& image) = 0;
  /// Stores an encoded image with the file times of its source and sets the image's FileSize. Throws RuntimeFailure
  /// JPEGLibrary if the file cannot be written, and FileAccess if the folder's drive is not mapped.
  [[nodiscard]] virtual Delivery StoreImage(ImageRunInfo& image, std::string_view jpeg) = 0;
  /// Stores an encoded thumbnail. Throws like StoreImage.
  [[nodiscard]] virtual Delivery StoreThumbnail(const ImageRunInfo& image, std::string_view jpeg) = 0;

  /// Copies a backdrop or link graphic into the images folder under `name`. `source` is path text.
  [[nodiscard]] virtual Delivery CopyAuxiliary(const std::string& source, const std::string& name) = 0;

  /// Store the bytes of a page. Throw RuntimeFailure FileAccess if they cannot be written.
  [[nodiscard]] virtual Delivery StoreIndexPage(std::string_view page) = 0;
  [[nodiscard]] virtual Delivery StoreThumbnailPage(std::int32_t number, std::string_view page) = 0;
  [[nodiscard]] virtual Delivery StoreWrapperPage(const std::string& listText, std::string_view page) = 0;
};

}  // namespace vantorium::generation
