#include "core/file/ProjectFileElements.h"

namespace vantorium {
namespace {

void PutSlideShow(pugi::xml_node layout, const GalleryProject& project) {
  pugi::xml_node show = layout.append_child("SLIDESHOW");
  PutAttribute(show, "FIRSTSLIDE", kFirstSlideWords, project.comboGallerySlideShowBeginWith);
  PutAttribute(show, "NEXTSLIDE", kNextSlideWords, project.comboGallerySlideShowActionAfterImage);
  PutAttribute(show, "STARTOVER", kStartOverWords, project.comboGallerySlideShowStartOverWith);
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
  PutAttribute(layout, "RESIZABLE", project.checkGalleryFramesResizable);
  PutAttribute(layout, "BORDERS", project.checkGalleryFramesDisplayBorders);
  if (HasSlideShow(project)) PutSlideShow(layout, project);
}

}  // namespace vantorium
