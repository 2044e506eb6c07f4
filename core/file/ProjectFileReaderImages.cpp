#include "core/ProjectFields.h"
#include "core/RegularTurns.h"
#include "core/file/ProjectFileReaderSections.h"
#include "core/file/ProjectFileReaderValues.h"
#include "env/Numbers.h"
#include "env/Text.h"

namespace vantorium::core {
namespace {

// The positions are 32-bit numbers, so that lists longer than 16 bits can count are restored.

[[nodiscard]] bool AddImageElement(pugi::xml_node image, ImageListOperations& list) {
  const auto index = env::ParseInt32(AttributeOf(image, "INDEX").value_or(""));
  return list.AddImage(static_cast<std::size_t>(index), TextOrEmpty(image, "SOURCE"), TextOrEmpty(image, "NAME"),
                       MultilineText(image.child("DESCRIPTION")), "");
}

[[nodiscard]] bool DescribeThumbnail(pugi::xml_node thumbnail, ImageList& list) {
  const auto index = AttributeOf(thumbnail, "INDEX");
  if (!index) return true;
  const std::int64_t position = env::ParseInt32(*index);
  if (position < 1 || position > static_cast<std::int64_t>(list.Count())) return false;
  list.SetThumbnailDescription(static_cast<std::size_t>(position), MultilineText(thumbnail.child("DESCRIPTION")));
  return true;
}

/// Returns false if an image is refused.
[[nodiscard]] bool AddImages(pugi::xml_node images, ImageListOperations& list, env::EventLoop& events) {
  RegularTurns turns(events);
  for (auto node = NextElement(images, images, "IMAGE"); node; node = NextElement(node, images, "IMAGE")) {
    if (!AddImageElement(node, list)) return false;
    turns.Step();
  }
  return true;
}

/// Returns false if a description is of no image.
[[nodiscard]] bool DescribeThumbnails(pugi::xml_node thumbnails, ImageList& list, env::EventLoop& events) {
  RegularTurns turns(events);
  for (auto node = NextElement(thumbnails, thumbnails, "THUMBNAIL"); node;
       node = NextElement(node, thumbnails, "THUMBNAIL")) {
    if (!DescribeThumbnail(node, list)) return false;
    turns.Step();
  }
  return true;
}

void ReadCaption(pugi::xml_node caption, ProjectEditor& editor, const CaptionFields& fields) {
  const std::string_view type = AttributeOf(caption, "TYPE").value_or("");
  if (env::EqualsIgnoringCase(type, kPopupCaptionWord)) {
    editor.Set(fields.popup, kOn);
    editor.Set(fields.popupText, MultilineText(caption));
  } else if (env::EqualsIgnoringCase(type, kRegularCaptionWord)) {
    editor.Set(fields.regular, kOn);
    editor.Set(fields.regularText, MultilineText(caption));
    ReadWord(editor, caption, "PLACE", kReadCaptionPlaceWords, fields.placement);
    ReadAlignment(editor, caption, fields.alignment);
  }
}

void ReadCaptions(pugi::xml_node parent, ProjectEditor& editor, const CaptionFields& fields) {
  editor.Set(fields.regularText, "");
  editor.Set(fields.popupText, "");
  for (auto node = NextElement(parent, parent, "CAPTION"); node; node = NextElement(node, parent, "CAPTION")) {
    ReadCaption(node, editor, fields);
  }
}

/// An absent header clears that of `whenAbsent`.
void ReadDescriptionFrame(pugi::xml_node parent, ProjectEditor& editor, const DescriptionFields& fields,
                          const DescriptionFields& whenAbsent) {
  if (const pugi::xml_node header = parent.child("DESCRIPTIONHEADER")) {
    editor.Set(fields.header, MultilineText(header));
    ReadWord(editor, header, "PLACE", kDescriptionPlaceWords, fields.placement);
    ReadAlignment(editor, header, fields.alignment);
  } else {
    editor.Set(whenAbsent.header, "");
    editor.Set(whenAbsent.placement, NumberOf(Placement::None));
  }
  editor.Set(fields.footer, MultilineText(parent.child("DESCRIPTIONFOOTER")));
}

void ReadSize(pugi::xml_node size, ProjectEditor& editor, const SizeFields& fields) {
  ReadNumber(editor, size, "KEEPASPECTRATIO", fields.keepAspectRatio);
  ReadText(editor, size, "WIDTH", fields.width);
  editor.Set(fields.setWidth, FlagOf(AttributeOf(size, "WIDTH").has_value()));
  ReadText(editor, size, "HEIGHT", fields.height);
}

void ReadImageModifications(pugi::xml_node modify, ProjectEditor& editor) {
  const pugi::xml_node size = modify.child("SIZE");
  editor.Set(&GalleryProject::checkImageWrapperImageKeepSize, FlagOf(!size));
  if (size) {
    ReadSize(size, editor, kImages.size);
    ReadNumber(editor, size, "PHYSICALRESIZE", &GalleryProject::checkImageWrapperImagePhysicalResize);
  }
  ReadFilters(modify, editor, kImages);
}

void ReadThumbnailModifications(pugi::xml_node modify, ProjectEditor& editor) {
  if (const pugi::xml_node size = modify.child("SIZE")) ReadSize(size, editor, kThumbnails.size);
  ReadFilters(modify, editor, kThumbnails);
}

}  // namespace

ReadResult ReadImages(pugi::xml_node images, ProjectEditor& editor, ImageListOperations* list, env::EventLoop& events) {
  ReadTextOr(editor, images, "FOLDER", kImages.folder, DefaultOf(kImages.folder));
  ReadSwitch(editor, images, "UPRIGHT", &GalleryProject::checkImagesUpright);
  ReadSwitch(editor, images, "TRUECOLORS", &GalleryProject::checkImagesTrueColors);
  if (list != nullptr && !AddImages(images, *list, events)) return ReadResult::ImageRefused;
  ReadCaptions(images, editor, kImages.captions);
  ReadDescriptionFrame(images, editor, kImages.description, kImages.description);
  if (const pugi::xml_node modify = images.child("MODIFY")) ReadImageModifications(modify, editor);
  return ReadResult::Complete;
}

ReadResult ReadThumbnails(pugi::xml_node thumbnails, ProjectEditor& editor, ImageList* list, env::EventLoop& events) {
  ReadTextOr(editor, thumbnails, "FOLDER", kThumbnails.folder, "1");
  if (list != nullptr && !DescribeThumbnails(thumbnails, *list, events)) return ReadResult::InvalidThumbnailIndex;
  ReadCaptions(thumbnails, editor, kThumbnails.captions);
  // An absent header clears that of the images: existing files depend on it.
  ReadDescriptionFrame(thumbnails, editor, kThumbnails.description, kImages.description);
  if (const pugi::xml_node modify = thumbnails.child("MODIFY")) ReadThumbnailModifications(modify, editor);
  return ReadResult::Complete;
}

}  // namespace vantorium::core
