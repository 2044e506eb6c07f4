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
    path = harness.File("project.gpj", text);
    return ReadPath();
  }
  bool Read(const ProjectFileParts& parts) { return Read(parts.Text()); }
  /// Reads the file at `path`.
  bool ReadPath() {
    harness.project.images.Clear();
    harness.boxes.boxes.clear();
    harness.calls.clear();
    core::ProjectFileReader reader(harness.project, harness.images, harness.paths, harness.boxes, harness.host,
                                   harness.events);
    return reader.ReadProjectFile(path);
  }
  /// The reason in the only message box.
  [[nodiscard]] std::string Reason() const {
    if (harness.boxes.boxes.size() != 1 || harness.boxes.boxes[0].title != "Invalid Project File")
      return "no such message box";
    const std::string& text = harness.boxes.boxes[0].text;
    return text.substr(text.find("Reason: ") + 8);
  }
  /// Title and text of the only message box.
  [[nodiscard]] std::string Box() const {
    return harness.boxes.boxes.size() == 1 ? harness.boxes.boxes[0].title + ": " + harness.boxes.boxes[0].text
                                           : "no single message box";
  }
  [[nodiscard]] const core::GalleryProject& Settings() const { return harness.project.settings; }

  ProjectHarness harness;
  std::string path;
};

}  // namespace vantorium::fakes
