#pragma once

#include "core/generation/GalleryTarget.h"
#include "core/generation/RunState.h"

namespace vantorium::generation {

/// The target of Create and Preview: the output folder.
class LocalTarget : public GalleryTarget {
 public:
  explicit LocalTarget(const RunState& run) : run_(run) {}

  [[nodiscard]] Delivery MakeFolders() override;
  [[nodiscard]] bool MayAskAhead() const override { return true; }
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
  void WritePage(const std::string& name, std::string_view page) const;

  const RunState& run_;
};

}  // namespace vantorium::generation
