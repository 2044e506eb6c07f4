#include "core/file/ProjectFileElements.h"

namespace vantorium::core {
namespace {

void PutSlideShow(pugi::xml_node layout, const GalleryProject& project) {
  pugi::xml_node show = layout.append_child("SLIDESHOW");
  PutPlainAttributes(show, project, kSlideShowAttributes);
  const bool automatic = StartsByItself(project);
  PutAttribute(show, "AUTOSTART", FlagOf(automatic));
  if (automatic) PutAttribute(show, "AUTOSTARTDELAY", project.textGallerySlideShowAutoStartDelay);
  PutAttribute(show, "DELAY", project.textGallerySlideShowDelay);
}

}  // namespace

void PutLayout(pugi::xml_node gallery, const GalleryProject& project) {
  pugi::xml_node layout = gallery.append_child("LAYOUT");
  PutAttribute(layout, "TYPE", kLayoutTypeWords, project.comboGalleryLayoutType);
  PutAttribute(layout, "IMAGEFRAMENAME", project.comboImageFrameName);
  PutAttribute(layout, "THUMBFRAMENAME", project.textThumbnailFrameName);
  const char* unit = IsOn(project.checkGalleryFrameSizeInPercent) ? "%" : "";
  PutAttribute(layout, "FRAMESIZE", project.textGalleryFrameSize + unit);
  PutPlainAttributes(layout, project, kLayoutAttributes);
  if (HasSlideShow(project)) PutSlideShow(layout, project);
}

}  // namespace vantorium::core
