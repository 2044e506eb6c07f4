#pragma once

#include "core/generation/LocalTarget.h"
#include "core/generation/RunOrder.h"
#include "publish/mFTP.h"

namespace vantorium::generation {

/// The target of Publish: a server. Generated files are in the temporary folder until they are sent; pages and
/// thumbnails are deleted there afterwards, images stay.
class ServerTarget : public GalleryTarget {
 public:
  ServerTarget(const RunState& run, const RunOrder& order, publish::mFTP& ftp)
      : run_(run), order_(order), ftp_(ftp), local_(run) {}

  [[nodiscard]] Delivery MakeFolders() override;
  [[nodiscard]] bool MayAskAhead() const override { return false; }
  [[nodiscard]] bool ImageExists(const ImageRunInfo& image) override;
  [[nodiscard]] bool ThumbnailExists(const ImageRunInfo& image) override;
  [[nodiscard]] std::string ImageSizeText(const ImageRunInfo& image) override;
  [[nodiscard]] Delivery CopyImage(const ImageRunInfo& image) override;
  [[nodiscard]] Delivery StoreImage(ImageRunInfo& image, std::string_view jpeg) override;
  [[nodiscard]] Delivery StoreThumbnail(const ImageRunInfo& image, std::string_view jpeg) override;
  [[nodiscard]] Delivery CopyAuxiliary(const std::string& source, const std::string& name) override;
  [[nodiscard]] Delivery StoreIndexPage(std::string_view page) override;
  [[nodiscard]] Delivery StoreThumbnailPage(std::int32_t number, std::string_view page) override;
  [[nodiscard]] Delivery StoreWrapperPage(const std::string& listText, std::string_view page) override;

 private:
  [[nodiscard]] std::string RemoteImagesDir() const;
  [[nodiscard]] std::string RemoteThumbsDir() const;
  [[nodiscard]] std::string RemoteThumbnail(const ImageRunInfo& image) const;
  /// Sends a file from the temporary folder, then deletes it there.
  [[nodiscard]] Delivery Move(const std::string& localPath, const std::string& remotePath, const std::string& text);
  [[nodiscard]] Delivery SendPage(const std::string& name);

  const RunState& run_;
  const RunOrder& order_;
  publish::mFTP& ftp_;
  LocalTarget local_;
};

}  // namespace vantorium::generation
