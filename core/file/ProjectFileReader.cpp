#include "core/file/ProjectFileReader.h"

#include "core/file/ProjectFileReaderSections.h"
#include "core/file/ProjectFileReaderValues.h"
#include "core/file/XmlSyntax.h"
#include "env/FileInput.h"
#include "env/RuntimeFailure.h"

#include <new>
#include <utility>

#include <fmt/format.h>

namespace vantorium::core {
namespace {

constexpr char kProgramTitle[] = "Vantorium";

/// Returns false for a file that cannot be read or is not an XML document.
bool Load(XmlFile& file, const env::PathMap& paths, const std::string& path, env::EventLoop& events) {
  const auto native = paths.ToNative(path);
  if (!native) return false;
  try {
    std::string bytes = env::ReadFileWhole(*native, kLargestXmlFile);
    events.Turn();
    return file.Parse(std::move(bytes));
  } catch (const env::RuntimeFailure&) {
    return false;
  }
}

}  // namespace

bool ProjectFileReader::ReadProjectFile(const std::string& path) {
  window_.SetStatusText(fmt::format("Reading Project File \"{}\"...", paths_.Surface(path)));
  window_.ShowBusyPointer(true);
  events_.Turn();
  ResetToDefaults(project_.settings, project_.UntitledName());
  bool modified = false;  // edits made by reading are not the user's
  ProjectEditor editor(project_.settings, modified);
  ReadResult result = ReadResult::Complete;
  try {
    result = ReadInto(editor, path);
  } catch (const env::RuntimeFailure& failure) {
    // Leaves the status text and the pointer unchanged, as users of the program know it.
    boxes_.Show(env::BoxKind::Plain, env::BoxButtons::Ok, kProgramTitle, failure.Description());
    return false;
  } catch (const std::bad_alloc&) {
    boxes_.Show(env::BoxKind::Plain, env::BoxButtons::Ok, kProgramTitle, "Out of memory");
    return false;
  }
  if (const std::string reason = ReasonOf(result); !reason.empty()) ReportInvalidProjectFile(path, reason);
  window_.SetStatusText("");
  window_.ShowBusyPointer(false);
  return result == ReadResult::Complete;
}

void ProjectFileReader::ReportInvalidProjectFile(const std::string& path, const std::string& reason) {
  boxes_.Critical("Invalid Project File",
                  fmt::format("\"{}\" could not be loaded in whole because it is not a valid Vantorium 3.0 Project "
                              "File.\r\rReason: {}",
                              paths_.Surface(path), reason));
}

ReadResult ProjectFileReader::ReadInto(ProjectEditor& editor, const std::string& path) {
  XmlFile file;
  if (!Load(file, paths_, path, events_) || std::string_view(file.Root().name()) != "GALLERYPROJECT") {
    return ReadResult::NoProject;
  }
  events_.Turn();
  const pugi::xml_node gallery = file.Root().child("GALLERY");
  if (images_ != nullptr && askForMovedFolders_ && !paths_.ShowsLetters()) MoveSources(gallery.child("IMAGES"));
  return gallery ? ReadGallery(gallery, editor) : ReadResult::NoGallery;
}

/// Writes the places into the document before it is read, so that the rules of reading hold for them.
void ProjectFileReader::MoveSources(pugi::xml_node images) {
  const std::vector<std::string> sources = SourcesWithoutPlace(images, paths_);
  if (sources.empty()) return;
  const std::vector<MovedFolder> folders = askForMovedFolders_(sources);
  hasMovedSources_ = !folders.empty() && ReplaceSources(images, folders, paths_);
}

ReadResult ProjectFileReader::ReadGallery(pugi::xml_node gallery, ProjectEditor& editor) {
  ReadText(editor, gallery, "TITLE", &GalleryProject::textGalleryTitle);
  editor.Set(&GalleryProject::GalleryInfoText, MultilineText(gallery.child("INFO")));
  ReadResult result = ReadLayout(gallery, editor);
  if (result != ReadResult::Complete) return result;
  editor.Set(&GalleryProject::GalleryHeadCode, MultilineText(gallery.child("HEAD")));

  if (const pugi::xml_node images = gallery.child("IMAGES")) result = ReadImages(images, editor, images_, events_);
  if (result != ReadResult::Complete) return result;
  if (const pugi::xml_node thumbnails = gallery.child("THUMBNAILS")) {
    result = ReadThumbnails(thumbnails, editor, images_ != nullptr ? &project_.images : nullptr, events_);
  }
  if (result != ReadResult::Complete) return result;
  result = ReadThumbnailPage(gallery.child("THUMBNAILPAGE"), editor);
  return result == ReadResult::Complete ? ReadImagePage(gallery.child("IMAGEPAGE"), editor) : result;
}

}  // namespace vantorium::core
