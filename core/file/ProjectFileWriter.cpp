#include "core/file/ProjectFileWriter.h"

#include "core/Generator.h"
#include "core/RegularTurns.h"
#include "core/file/ProjectFileElements.h"
#include "core/file/XmlSyntax.h"
#include "env/FileOutput.h"
#include "env/RuntimeFailure.h"

#include <fmt/format.h>
#include <pugixml.hpp>

// The file, with the attributes and children in their order; "?" marks what only some projects contain:
//
//   GALLERYPROJECT VERSION
//     META NAME CONTENT
//     GALLERY TITLE
//       HEAD?  INFO?
//       LAYOUT TYPE IMAGEFRAMENAME THUMBFRAMENAME FRAMESIZE RESIZABLE BORDERS
//         SLIDESHOW? FIRSTSLIDE NEXTSLIDE STARTOVER AUTOSTART AUTOSTARTDELAY? DELAY
//       IMAGES FOLDER UPRIGHT? TRUECOLORS?
//         IMAGE... INDEX NAME SOURCE
//           DESCRIPTION?
//         CAPTION?  CAPTION?  DESCRIPTIONHEADER  DESCRIPTIONFOOTER
//         MODIFY
//           SIZE?  FILTER...
//       THUMBNAILS FOLDER
//         THUMBNAIL... INDEX
//           DESCRIPTION
//         CAPTION?  CAPTION?  DESCRIPTIONHEADER  DESCRIPTIONFOOTER
//         MODIFY
//           SIZE  FILTER...
//       THUMBNAILPAGE PREFIX EXTENSION colors? BACKGROUND?
//         HEAD?  HEADER?  FOOTER?  ARRANGEMENT  THUMBNAILHEADER?  THUMBNAILFOOTER?
//         PAGELINKS DIRECT? PLACE?
//           FIRST  LAST  PREVIOUS  NEXT
//       IMAGEPAGE? PREFIX EXTENSION colors? BACKGROUND? USE
//         HEAD?  HEADER?  FOOTER?  IMAGEHEADER?  IMAGEFOOTER?
//         PAGELINKS PLACE?
//           FIRST  LAST  PREVIOUS  NEXT  INDEX

namespace vantorium::core {
namespace {

class TextWriter : public pugi::xml_writer {
 public:
  explicit TextWriter(env::EventLoop& events) : turns_(events) {}

  void write(const void* data, std::size_t size) override {
    text.append(static_cast<const char*>(data), size);
    turns_.Step();
  }

  std::string text;

 private:
  RegularTurns turns_;
};

void PutGallery(pugi::xml_node document, const Project& project, env::EventLoop& events) {
  const GalleryProject& settings = project.settings;
  pugi::xml_node gallery = document.append_child("GALLERY");
  PutAttribute(gallery, "TITLE", settings.textGalleryTitle);
  PutTextElementUnlessEmpty(gallery, "HEAD", settings.GalleryHeadCode);
  PutTextElementUnlessEmpty(gallery, "INFO", settings.GalleryInfoText);
  PutLayout(gallery, settings);
  PutImages(gallery, settings, project.images, events);
  PutThumbnails(gallery, settings, project.images, events);
  PutThumbnailPage(gallery, settings);
  if (IsOn(settings.checkImageWrapperUse)) PutImagePage(gallery, settings);
}

}  // namespace

std::string ProjectFileText(const Project& project, env::EventLoop& events) {
  pugi::xml_document document;
  pugi::xml_node root = document.append_child("GALLERYPROJECT");
  PutAttribute(root, "VERSION", "3.0");
  pugi::xml_node meta = root.append_child("META");
  PutAttribute(meta, "NAME", "GENERATOR");
  PutAttribute(meta, "CONTENT", kGenerator);
  PutGallery(root, project, events);

  TextWriter writer(events);
  document.save(writer, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
  if (writer.text.size() > kLargestXmlFile || !IsWellFormedXml(writer.text)) {
    throw env::RuntimeFailure(env::FailureKind::InvalidArgument);
  }
  return std::move(writer.text);
}

bool ProjectFileWriter::WriteProjectFile(const std::string& path) const {
  window_.SetStatusText(fmt::format("Writing Project File \"{}\"...", paths_.Surface(path)));
  window_.ShowBusyPointer(true);
  events_.Turn();
  bool written = false;
  try {
    if (const auto native = paths_.ToNative(path)) {
      const std::string text = ProjectFileText(project_, events_);
      events_.Turn();
      env::WriteKeptFile(*native, text);
      written = true;
    }
  } catch (const std::exception&) {
    // The caller shows the message for a file that could not be written.
  }
  window_.SetStatusText("");
  window_.ShowBusyPointer(false);
  return written;
}

}  // namespace vantorium::core
