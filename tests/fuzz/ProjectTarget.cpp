// Project files in any encoding: a project that was read can be written and read back.
#include "core/file/ProjectFileWriter.h"
#include "core/file/XmlEncoding.h"
#include "core/file/XmlNode.h"
#include "core/file/XmlSyntax.h"
#include "env/PathText.h"
#include "env/Text.h"
#include "tests/fakes/ProjectFakes.h"
#include "tests/fuzz/FuzzTarget.h"

using namespace vantorium;

namespace {

/// A session with a drive P:, which holds the two photographs of the corpus.
class ProjectRoundTrip : public fakes::ProjectHarness {
 public:
  ProjectRoundTrip() {
    paths = env::PathMap({{'P', folder.Path().string()}});
    folder.Write("a.jpg", "bytes");
    folder.Write("b.jpg", "more bytes");
  }

  [[nodiscard]] bool Read(std::string_view bytes) {
    folder.Write("project.gpj", bytes);
    boxes.boxes.clear();
    calls.clear();
    return session.LoadProject("P:\\project.gpj");
  }

  /// The text of the project file with all line ends as LF: writing may change them.
  [[nodiscard]] std::string Written() { return OneLineEnd(core::ProjectFileText(project, events)); }

  /// The images as the file keeps them: paths with slashes, and one kind of line end in texts.
  [[nodiscard]] std::string Images() const {
    std::string text;
    for (std::size_t position = 1; position <= project.images.Count(); ++position) {
      const core::ImageEntry& entry = project.images.Entry(position);
      text += entry.ImageName + "\n" + env::WithSlashes(entry.SourcePath) + "\n" + OneLineEnd(entry.ImageDescription) +
              "\n" + OneLineEnd(entry.ThumbnailDescription) + "\n";
    }
    return text;
  }

 private:
  /// A character reference can put a CR anywhere. Once written in a CDATA section, it is a line end like any other.
  static std::string OneLineEnd(const std::string& text) {
    return env::ReplaceAll(env::ReplaceAll(text, env::kCrLf, "\n"), "\r", "\n");
  }
};

/// Resets the settings that are written but not read back, see docs/project-file.md.
void LoseWhatIsNotReadBack(core::GalleryProject& settings) {
  constexpr core::Choice kAbove = 2;
  constexpr core::Choice kBelow = 3;
  settings.textThumbnailsTableBackdrop.clear();
  for (core::Choice* placement :
       {&settings.comboCaptionsImagesRegularPlacement, &settings.comboCaptionsThumbnailsRegularPlacement}) {
    if (*placement == kAbove) *placement = kBelow;
  }
}

void CheckXml(const std::string& bytes) {
  const auto text = core::DecodeXml(bytes);
  core::XmlFile file;
  const bool parsed = file.Parse(bytes);
  fuzz::Require(parsed == (text && core::IsWellFormedXml(*text)), "exactly the well-formed documents are parsed");
  if (!parsed) return;
  std::size_t nodes = 0;
  for (auto node = file.Root(); node; node = core::NextInDocument(node, file.Root())) ++nodes;
  fuzz::Require(nodes > 0 && nodes <= text->size(), "a document has an element, and no more nodes than bytes");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static ProjectRoundTrip trip;
  const std::string input = fuzz::InputText(data, size);
  CheckXml(input);
  if (!trip.Read(input)) {
    fuzz::Require(!trip.boxes.boxes.empty(), "a project that cannot be read gives a message box");
    std::ignore = core::ProjectFileText(trip.project, trip.events);  // a partly read project may be saved
    return 0;
  }
  fuzz::Require(trip.boxes.boxes.empty(), "a project that was read gives no message box");
  LoseWhatIsNotReadBack(trip.project.settings);
  const std::string images = trip.Images();
  const std::string written = trip.Written();
  fuzz::Require(trip.Read(core::ProjectFileText(trip.project, trip.events)),
                "a project that was read can be written and read again");
  fuzz::RequireEqual(trip.Images(), images, "the images are read back");
  fuzz::RequireEqual(trip.Written(), written, "the same project gives the same file");
  return 0;
}
