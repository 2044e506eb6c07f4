#include "core/ProjectFields.h"
#include "core/file/ProjectFileReaderSections.h"
#include "core/file/ProjectFileReaderValues.h"
#include "env/Text.h"

namespace vantorium::core {
namespace {

/// In seconds; an absent attribute is 0.
void ReadDelay(ProjectEditor& editor, pugi::xml_node show, const char* attribute, TextField field) {
  editor.Set(field, WholeNumber(AttributeOf(show, attribute).value_or("0")));
}

void ReadSlideShow(pugi::xml_node show, ProjectEditor& editor) {
  editor.Set(&GalleryProject::checkGallerySlideShow, kOn);
  ReadPlainAttributes(editor, show, kSlideShowAttributes);
  editor.Set(&GalleryProject::checkGallerySlideShowAutoStart,
             FlagOf(IsNumberOne(AttributeOf(show, "AUTOSTART").value_or(""))));
  ReadDelay(editor, show, "AUTOSTARTDELAY", &GalleryProject::textGallerySlideShowAutoStartDelay);
  ReadDelay(editor, show, "DELAY", &GalleryProject::textGallerySlideShowDelay);
}

/// Absent names get a default only in a single frame; in the other layouts the names of a new project stay.
void ReadFrameNames(pugi::xml_node layout, ProjectEditor& editor, bool singleFrame) {
  ReadText(editor, layout, "IMAGEFRAMENAME", &GalleryProject::comboImageFrameName);
  if (singleFrame && !AttributeOf(layout, "IMAGEFRAMENAME")) {
    editor.Set(&GalleryProject::comboImageFrameName, DefaultOf(&GalleryProject::comboImageFrameName));
  }
  ReadText(editor, layout, "THUMBFRAMENAME", &GalleryProject::textThumbnailFrameName);
  if (singleFrame && !AttributeOf(layout, "THUMBFRAMENAME")) {
    const std::string& name = DefaultOf(&GalleryProject::textThumbnailFrameName);
    const bool taken = editor.Project().comboImageFrameName == name;
    editor.Set(&GalleryProject::textThumbnailFrameName, taken ? name + "_2" : name);
  }
}

void ReadFrameSize(pugi::xml_node layout, ProjectEditor& editor) {
  const auto value = AttributeOf(layout, "FRAMESIZE");
  if (!value) return;
  std::string size(*value);
  const bool percent = size.ends_with('%');
  if (percent) size.pop_back();
  editor.Set(&GalleryProject::checkGalleryFrameSizeInPercent, FlagOf(percent));
  editor.Set(&GalleryProject::textGalleryFrameSize, std::move(size));
}

}  // namespace

ReadResult ReadLayout(pugi::xml_node gallery, ProjectEditor& editor) {
  const pugi::xml_node layout = gallery.child("LAYOUT");
  const auto type = AttributeOf(layout, "TYPE");
  if (!type) return ReadResult::NoLayout;
  ReadWord(editor, layout, "TYPE", kLayoutTypeWords, &GalleryProject::comboGalleryLayoutType);
  const bool singleFrame = env::EqualsIgnoringCase(*type, kLayoutTypeWords[0]);
  if (const pugi::xml_node show = layout.child("SLIDESHOW"); singleFrame && show) ReadSlideShow(show, editor);
  ReadFrameNames(layout, editor, singleFrame);
  ReadFrameSize(layout, editor);
  ReadPlainAttributes(editor, layout, kLayoutAttributes);
  return ReadResult::Complete;
}

}  // namespace vantorium::core
