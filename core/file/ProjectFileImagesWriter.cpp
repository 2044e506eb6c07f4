#include "core/RegularTurns.h"
#include "core/file/ProjectFileElements.h"
#include "core/file/ProjectFileFields.h"
#include "core/file/XmlText.h"
#include "env/PathText.h"
#include "env/RuntimeFailure.h"

namespace vantorium {
namespace {

void PutImage(pugi::xml_node images, std::size_t position, const ImageEntry& entry) {
  if (!IsXmlText(entry.SourcePath)) throw RuntimeFailure(FailureKind::InvalidArgument);
  pugi::xml_node image = images.append_child("IMAGE");
  PutAttribute(image, "INDEX", static_cast<std::int64_t>(position));
  PutAttribute(image, "NAME", entry.ImageName);
  PutAttribute(image, "SOURCE", std::string(kFilePrefix) + WithSlashes(entry.SourcePath));
  PutTextElementUnlessEmpty(image, "DESCRIPTION", entry.ImageDescription);
}

void PutThumbnail(pugi::xml_node thumbnails, std::size_t position, const ImageEntry& entry) {
  if (entry.ThumbnailDescription.empty()) return;
  pugi::xml_node thumbnail = thumbnails.append_child("THUMBNAIL");
  PutAttribute(thumbnail, "INDEX", static_cast<std::int64_t>(position));
  PutTextElement(thumbnail, "DESCRIPTION", entry.ThumbnailDescription);
}

void PutCaptions(pugi::xml_node parent, const GalleryProject& project, const CaptionFields& fields) {
  if (project.*fields.regular == 1) {
    pugi::xml_node caption = parent.append_child("CAPTION");
    const Choice placement = project.*fields.placement;
    PutAttribute(caption, "TYPE", kRegularCaptionWord);
    PutAttribute(caption, "PLACE", kWrittenCaptionPlaceWords, placement);
    const bool stacked = placement == 2 || placement == 3;
    PutAttribute(caption, "ALIGN", stacked ? FileWords(kAlignmentStackedWords) : FileWords(kAlignmentBesideWords),
                 project.*fields.alignment);
    PutText(caption, project.*fields.regularText);
  }
  if (project.*fields.popup == 1) {
    pugi::xml_node caption = parent.append_child("CAPTION");
    PutAttribute(caption, "TYPE", kPopupCaptionWord);
    PutText(caption, project.*fields.popupText);
  }
}

void PutDescriptionFrame(pugi::xml_node parent, const GalleryProject& project, const DescriptionFrameFields& fields) {
  pugi::xml_node header = PutTextElement(parent, "DESCRIPTIONHEADER", project.*fields.header);
  const Choice placement = project.*fields.placement;
  if (placement != 0) {
    const bool stacked = placement == 3 || placement == 4;
    PutAttribute(header, "PLACE", kDescriptionPlaceWords, placement);
    PutAttribute(header, "ALIGN", stacked ? FileWords(kAlignmentStackedWords) : FileWords(kAlignmentBesideWords),
                 project.*fields.alignment);
  }
  PutTextElement(parent, "DESCRIPTIONFOOTER", project.*fields.footer);
}

pugi::xml_node PutSize(pugi::xml_node modify, const GalleryProject& project, const SizeFields& fields) {
  pugi::xml_node size = modify.append_child("SIZE");
  const bool keepAspectRatio = project.*fields.keepAspectRatio != 0;
  const bool setWidth = project.*fields.setWidth != 0;
  PutAttribute(size, "KEEPASPECTRATIO", keepAspectRatio ? 1 : 0);
  if (!keepAspectRatio || setWidth) PutAttribute(size, "WIDTH", project.*fields.width);
  if (!keepAspectRatio || !setWidth) PutAttribute(size, "HEIGHT", project.*fields.height);
  return size;
}

}  // namespace

void PutImages(pugi::xml_node gallery, const GalleryProject& project, const ImageList& list, EventLoop& events) {
  pugi::xml_node images = gallery.append_child("IMAGES");
  PutAttribute(images, "FOLDER", project.textImageSettingsSubFolder);
  if (project.checkImagesUpright == 1) PutAttribute(images, "UPRIGHT", 1);
  if (project.checkImagesTrueColors == 1) PutAttribute(images, "TRUECOLORS", 1);
  RegularTurns turns(events);
  for (std::size_t position = 1; position <= list.Count(); ++position) {
    PutImage(images, position, list.Entry(position));
    turns.Step();
  }
  PutCaptions(images, project, kImageCaptions);
  PutDescriptionFrame(images, project, kImageDescriptionFrame);
  pugi::xml_node modify = images.append_child("MODIFY");
  if (project.checkImageWrapperImageKeepSize == 0) {
    const pugi::xml_node size = PutSize(modify, project, kImageSize);
    PutAttribute(size, "PHYSICALRESIZE", project.checkImageWrapperImagePhysicalResize);
  }
  PutImageFilters(modify, project);
}

void PutThumbnails(pugi::xml_node gallery, const GalleryProject& project, const ImageList& list, EventLoop& events) {
  pugi::xml_node thumbnails = gallery.append_child("THUMBNAILS");
  PutAttribute(thumbnails, "FOLDER", project.textThumbnailImageSettingsSubFolder);
  RegularTurns turns(events);
  for (std::size_t position = 1; position <= list.Count(); ++position) {
    PutThumbnail(thumbnails, position, list.Entry(position));
    turns.Step();
  }
  PutCaptions(thumbnails, project, kThumbnailCaptions);
  PutDescriptionFrame(thumbnails, project, kThumbnailDescriptionFrame);
  pugi::xml_node modify = thumbnails.append_child("MODIFY");
  PutSize(modify, project, kThumbnailSize);
  PutThumbnailFilters(modify, project);
}

}  // namespace vantorium
