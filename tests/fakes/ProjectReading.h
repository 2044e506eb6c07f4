#pragma once

#include "core/file/ProjectFileReader.h"
#include "tests/fakes/ProjectFakes.h"

#include <string>

namespace vantorium::fakes {

/// The parts of a small valid project file. Each test replaces the one that it is about.
struct ProjectFileParts {
  std::string gallery = "TITLE=\"Holidays\"";
  std::string layout = "<LAYOUT TYPE=\"singleframe\"/>";
  std::string lists = "";  ///< IMAGES and THUMBNAILS
  std::string thumbnailPageAttributes = "";
  std::string thumbnailPage = "<ARRANGEMENT/><PAGELINKS/>";
  std::string imagePage = "";

  [[nodiscard]] std::string Text() const {
    return "<GALLERYPROJECT><GALLERY " + gallery + ">" + layout + lists + "<THUMBNAILPAGE " + thumbnailPageAttributes +
           ">" + thumbnailPage + "</THUMBNAILPAGE>" + imagePage + "</GALLERY></GALLERYPROJECT>";
  }
};

/// Reads project files from texts.
class ProjectReading {
 public:
  bool Read(const std::string& text) {
    path = desk.File("project.gpj", text);
    return ReadPath();
  }
  bool Read(const ProjectFileParts& parts) { return Read(parts.Text()); }
  /// Reads the file at `path`.
  bool ReadPath() {
    desk.project.images.Clear();
    desk.boxes.boxes.clear();
    desk.calls.clear();
    core::ProjectFileReader reader(desk.project, desk.images, desk.paths, desk.boxes, desk.host, desk.events);
    return reader.ReadProjectFile(path);
  }
  /// The reason in the only message box.
  [[nodiscard]] std::string Reason() const {
    if (desk.boxes.boxes.size() != 1 || desk.boxes.boxes[0].title != "Invalid Project File") return "no such box";
    const std::string& text = desk.boxes.boxes[0].text;
    return text.substr(text.find("Reason: ") + 8);
  }
  /// Title and text of the only message box.
  [[nodiscard]] std::string Box() const {
    return desk.boxes.boxes.size() == 1 ? desk.boxes.boxes[0].title + ": " + desk.boxes.boxes[0].text : "not one box";
  }
  [[nodiscard]] const core::GalleryProject& Settings() const { return desk.project.settings; }

  ProjectDesk desk;
  std::string path;
};

}  // namespace vantorium::fakes
