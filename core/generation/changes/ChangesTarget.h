#pragma once

#include "core/generation/GalleryTarget.h"
#include "core/generation/RunOrder.h"
#include "core/generation/RunState.h"
#include "core/generation/changes/KnownFiles.h"
#include "core/generation/changes/PictureOrigins.h"

#include <memory>

namespace vantorium::generation {

/// The target of a run with OnlyChanges: it delivers to another target what that does not have already. The images
/// given to it must be those of the run.
class ChangesTarget : public GalleryTarget {
 public:
  ChangesTarget(const RunState& run, const RunOrder& order, KnownFiles& known, std::unique_ptr<GalleryTarget> inner)
      : run_(run), order_(order), known_(known), inner_(std::move(inner)), origins_(run) {}

  [[nodiscard]] Delivery MakeFolders() override { return inner_->MakeFolders(); }
  [[nodiscard]] bool MayAskAhead() const override { return inner_->MayAskAhead(); }
  [[nodiscard]] bool ImageExists(const ImageRunInfo& image) override { return inner_->ImageExists(image); }
  [[nodiscard]] bool ThumbnailExists(const ImageRunInfo& image) override { return inner_->ThumbnailExists(image); }
  [[nodiscard]] std::string ImageSizeText(const ImageRunInfo& image) override { return inner_->ImageSizeText(image); }

  [[nodiscard]] bool HasImage(ImageRunInfo& image) override;
  [[nodiscard]] bool HasThumbnail(const ImageRunInfo& image) override;
  [[nodiscard]] bool WillHaveImage(const ImageRunInfo& image) override;
  [[nodiscard]] bool WillHaveThumbnail(const ImageRunInfo& image) override;

  [[nodiscard]] Delivery CopyImage(const ImageRunInfo& image) override;
  [[nodiscard]] Delivery StoreImage(ImageRunInfo& image, std::string_view jpeg) override;
  [[nodiscard]] Delivery StoreThumbnail(const ImageRunInfo& image, std::string_view jpeg) override;
  [[nodiscard]] Delivery CopyAuxiliary(const std::string& source, const std::string& name) override;
  [[nodiscard]] Delivery StoreIndexPage(std::string_view page) override;
  [[nodiscard]] Delivery StoreThumbnailPage(std::int32_t number, std::string_view page) override;
  [[nodiscard]] Delivery StoreWrapperPage(const std::string& listText, std::string_view page) override;

 private:
  [[nodiscard]] bool WillHave(const std::string& name, const std::string& origin);
  [[nodiscard]] Delivery Copy(const std::string& name, const std::string& source, const KnownFiles::Deliver& deliver);

  const RunState& run_;
  const RunOrder& order_;
  KnownFiles& known_;
  std::unique_ptr<GalleryTarget> inner_;
  PictureOrigins origins_;
};

}  // namespace vantorium::generation
