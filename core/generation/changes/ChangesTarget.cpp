#include "core/generation/changes/ChangesTarget.h"

#include "core/generation/OutputNaming.h"
#include "core/generation/changes/GalleryNames.h"
#include "env/mFileFunctions.h"

namespace vantorium::generation {

bool ChangesTarget::HasImage(ImageRunInfo& image) {
  const MadeFile* known = known_.FindCurrent(NameOfImage(run_, image), origins_.OfImage(image));
  if (known != nullptr) image.FileSize = env::FileSizeText(known->size);
  return known != nullptr;
}

bool ChangesTarget::HasThumbnail(const ImageRunInfo& image) {
  return known_.FindCurrent(NameOfThumbnail(run_, image), origins_.OfThumbnail(image)) != nullptr;
}

bool ChangesTarget::WillHaveImage(const ImageRunInfo& image) {
  return WillHave(NameOfImage(run_, image), origins_.OfImage(image));
}

bool ChangesTarget::WillHaveThumbnail(const ImageRunInfo& image) {
  return WillHave(NameOfThumbnail(run_, image), origins_.OfThumbnail(image));
}

bool ChangesTarget::WillHave(const std::string& name, const std::string& origin) {
  if (inner_->MayAskAhead()) return known_.FindCurrent(name, origin) != nullptr;
  return known_.WillBeCurrent(name, origin);
}

Delivery ChangesTarget::CopyImage(const ImageRunInfo& image) {
  return Copy(NameOfImage(run_, image), image.Path, [&] { return inner_->CopyImage(image); });
}

Delivery ChangesTarget::StoreImage(ImageRunInfo& image, std::string_view jpeg) {
  image.FileSize = env::FileSizeText(jpeg.size());
  return known_.StorePicture(
      NameOfImage(run_, image), jpeg, [&] { return inner_->StoreImage(image, jpeg); },
      [&] { return origins_.IsSourceUnchanged(image) ? origins_.OfImage(image) : ""; });
}

Delivery ChangesTarget::StoreThumbnail(const ImageRunInfo& image, std::string_view jpeg) {
  return known_.StorePicture(
      NameOfThumbnail(run_, image), jpeg, [&] { return inner_->StoreThumbnail(image, jpeg); },
      [&] { return origins_.IsSourceUnchanged(image) ? origins_.OfThumbnail(image) : ""; });
}

Delivery ChangesTarget::CopyAuxiliary(const std::string& source, const std::string& name) {
  return Copy(NameOfAuxiliary(run_, name), source, [&] { return inner_->CopyAuxiliary(source, name); });
}

Delivery ChangesTarget::Copy(const std::string& name, const std::string& source, const KnownFiles::Deliver& deliver) {
  return known_.Copy(name, run_.files.Paths().ToNative(source), deliver);
}

Delivery ChangesTarget::StoreIndexPage(std::string_view page) {
  return known_.StorePage(NameOfIndexPage(order_), page, [&] { return inner_->StoreIndexPage(page); });
}

Delivery ChangesTarget::StoreThumbnailPage(std::int32_t number, std::string_view page) {
  return known_.StorePage(NameInGallery(ThumbnailPageName(run_.project, number)), page,
                          [&] { return inner_->StoreThumbnailPage(number, page); });
}

Delivery ChangesTarget::StoreWrapperPage(const std::string& listText, std::string_view page) {
  return known_.StorePage(NameInGallery(WrapperPageName(run_.project, listText)), page,
                          [&] { return inner_->StoreWrapperPage(listText, page); });
}

}  // namespace vantorium::generation
