#include "core/file/ProjectFileReaderSections.h"
#include "core/file/ProjectFileReaderValues.h"

namespace vantorium::core {
namespace {

void ReadColors(pugi::xml_node page, ProjectEditor& editor, const PageColorFields& fields) {
  for (const auto& [attribute, color] : kColorAttributes) ReadColor(editor, page, attribute, fields.*color, fields.use);
}

void ReadArrangement(pugi::xml_node arrangement, ProjectEditor& editor) {
  ReadDigits(editor, arrangement, "ROWS", &GalleryProject::textThumbnailsTableRows);
  ReadDigits(editor, arrangement, "COLS", &GalleryProject::textThumbnailsTableColumns);
  ReadPlainAttributes(editor, arrangement, kArrangementAttributes);
  ReadWord(editor, arrangement, "ALIGN", kTableAlignmentWords, &GalleryProject::comboThumbnailsTableAlignment);
  // The writer calls it BACKGROUND, so a written backdrop is not read back. Kept on purpose.
  ReadText(editor, arrangement, "BACKDROP", &GalleryProject::textThumbnailsTableBackdrop);
  ReadColor(editor, arrangement, "BGCOLOR", &GalleryProject::btnThumbnailsTableBGColor,
            &GalleryProject::checkThumbnailsTableUseBGColor);
}

void ReadPageAttributes(pugi::xml_node page, ProjectEditor& editor, const TargetFields& target) {
  ReadText(editor, page, "EXTENSION", target.extension);
  ReadTextOr(editor, page, "BACKGROUND", target.backdrop.source, "");
  ReadColors(page, editor, target.colors);
  ReadChildTexts(editor, page, target.codes, kPageTexts);
}

}  // namespace

ReadResult ReadThumbnailPage(pugi::xml_node page, ProjectEditor& editor) {
  if (!page) return ReadResult::NoThumbnailPage;
  ReadText(editor, page, "PREFIX", &GalleryProject::textThumbnailPageSettingsFilePrefix);
  ReadPageAttributes(page, editor, kThumbnails);
  const pugi::xml_node arrangement = page.child("ARRANGEMENT");
  if (!arrangement) return ReadResult::NoArrangement;
  ReadArrangement(arrangement, editor);
  ReadChildTexts(editor, page, kThumbnails.codes, kThumbnailTexts);
  const pugi::xml_node links = page.child("PAGELINKS");
  if (!links) return ReadResult::NoPageLinks;
  ReadThumbnailPageLinks(links, editor);
  return ReadResult::Complete;
}

ReadResult ReadImagePage(pugi::xml_node page, ProjectEditor& editor) {
  editor.Set(&GalleryProject::checkImageWrapperUse, FlagOf(!page.empty()));
  if (!page) return ReadResult::Complete;
  ReadPageAttributes(page, editor, kImages);
  ReadChildTexts(editor, page, kImages.codes, kImageTexts);
  const pugi::xml_node links = page.child("PAGELINKS");
  if (!links) return ReadResult::NoPageLinks;
  ReadImagePageLinks(links, editor);
  return ReadResult::Complete;
}

}  // namespace vantorium::core
