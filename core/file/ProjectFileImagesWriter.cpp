#include "core/RegularTurns.h"
#include "core/file/ProjectFileElements.h"
#include "core/file/ProjectFileFields.h"
#include "core/file/XmlText.h"
#include "env/PathText.h"
#include "env/RuntimeFailure.h"

namespace vantorium::core {
namespace {

void PutImage(pugi::xml_node images, std::size_t position, const ImageEntry& entry) {
  if (!IsXmlText(entry.SourcePath)) throw env::RuntimeFailure(env::FailureKind::InvalidArgument);
  pugi::xml_node image = images.append_child("IMAGE");
  PutAttribute(image, "INDEX", static_cast<std::int64_t>(position));
  PutAttribute(image, "NAME", entry.ImageName);
  PutAttribute(image, "SOURCE", std::string(kFilePrefix) + env::WithSlashes(entry.SourcePath));
  PutTextElementUnlessEmpty(image, "DESCRIPTION", entry.ImageDescription);
}

void PutThumbnail(pugi::xml_node thumbnails, std::size_t position, const ImageEntry& entry) {
  if (entry.ThumbnailDescription.empty()) return;
  pugi::xml_node thumbnail = thumbnails.append_child("THUMBNAIL");
  PutAttribute(thumbnail, "INDEX", static_cast<std::int64_t>(position));
  PutTextElement(thumbnail, "DESCRIPTION", entry.ThumbnailDescription);
}

void PutCaptions(pugi::xml_node parent, const GalleryProject& project, const CaptionFields& fields) {
  if (IsOn(project.*fields.regular)) {
    pugi::xml_node caption = parent.append_child("CAPTION");
    const Choice placement = project.*fields.placement;
    PutAttribute(caption, "TYPE", kRegularCaptionWord);
    PutAttribute(caption, "PLACE", kWrittenCaptionPlaceWords, placement);
    const bool stacked = IsAboveOrBelow(CaptionPlacement(placement));
    PutAttribute(caption, "ALIGN", stacked ? FileWords(kAlignmentStackedWords) : FileWords(kAlignmentBesideWords),
                 project.*fields.alignment);
    PutText(caption, project.*fields.regularText);
  }
  if (IsOn(project.*fields.popup)) {
    pugi::xml_node caption = parent.append_child("CAPTION");
    PutAttribute(caption, "TYPE", kPopupCaptionWord);
    PutText(caption, project.*fields.popupText);
  }
}

void PutDescriptionFrame(pugi::xml_node parent, const GalleryProject& project, const DescriptionFields& fields) {
  pugi::xml_node header = PutTextElement(parent, "DESCRIPTIONHEADER", project.*fields.header);
  const Placement placement = DescriptionPlacement(project.*fields.placement);
  if (placement != Placement::None) {
    const bool stacked = IsAboveOrBelow(placement);
    PutAttribute(header, "PLACE", kDescriptionPlaceWords, NumberOf(placement));
    PutAttribute(header, "ALIGN", stacked ? FileWords(kAlignmentStackedWords) : FileWords(kAlignmentBesideWords),
                 project.*fields.alignment);
  }
  PutTextElement(parent, "DESCRIPTIONFOOTER", project.*fields.footer);
}

pugi::xml_node PutSize(pugi::xml_node modify, const GalleryProject& project, const SizeFields& fields) {
  pugi::xml_node size = modify.append_child("SIZE");
  const bool keepAspectRatio = !IsOff(project.*fields.keepAspectRatio);
  const bool setWidth = !IsOff(project.*fields.setWidth);
  PutAttribute(size, "KEEPASPECTRATIO", FlagOf(keepAspectRatio));
  if (!keepAspectRatio || setWidth) PutAttribute(size, "WIDTH", project.*fields.width);
  if (!keepAspectRatio || !setWidth) PutAttribute(size, "HEIGHT", project.*fields.height);
  return size;
}

}  // namespace

void PutImages(pugi::xml_node gallery, const GalleryProject& project, const ImageList& list, env::EventLoop& events) {
  pugi::xml_node images = gallery.append_child("IMAGES");
  PutAttribute(images, "FOLDER", project.*kImages.folder);
  if (IsOn(project.checkImagesUpright)) PutAttribute(images, "UPRIGHT", 1);
  if (IsOn(project.checkImagesTrueColors)) PutAttribute(images, "TRUECOLORS", 1);
  RegularTurns turns(events);
  for (std::size_t position = 1; position <= list.Count(); ++position) {
    PutImage(images, position, list.Entry(position));
    turns.Step();
  }
  PutCaptions(images, project, kImages.captions);
  PutDescriptionFrame(images, project, kImages.description);
  pugi::xml_node modify = images.append_child("MODIFY");
  if (IsOff(project.checkImageWrapperImageKeepSize)) {
    const pugi::xml_node size = PutSize(modify, project, kImages.size);
    PutAttribute(size, "PHYSICALRESIZE", project.checkImageWrapperImagePhysicalResize);
  }
  PutImageFilters(modify, project);
}

void PutThumbnails(pugi::xml_node gallery, const GalleryProject& project, const ImageList& list,
                   env::EventLoop& events) {
  pugi::xml_node thumbnails = gallery.append_child("THUMBNAILS");
  PutAttribute(thumbnails, "FOLDER", project.*kThumbnails.folder);
  RegularTurns turns(events);
  for (std::size_t position = 1; position <= list.Count(); ++position) {
    PutThumbnail(thumbnails, position, list.Entry(position));
    turns.Step();
  }
  PutCaptions(thumbnails, project, kThumbnails.captions);
  PutDescriptionFrame(thumbnails, project, kThumbnails.description);
  pugi::xml_node modify = thumbnails.append_child("MODIFY");
  PutSize(modify, project, kThumbnails.size);
  PutThumbnailFilters(modify, project);
}

}  // namespace vantorium::core
