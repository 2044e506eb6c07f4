#include "core/file/ProjectFileReaderSections.h"
#include "core/file/ProjectFileReaderValues.h"

namespace vantorium {
namespace {

void ReadColors(pugi::xml_node page, ProjectEditor& editor, const PageColorFields& fields) {
  for (const auto& [attribute, color] : kColorAttributes) ReadColor(editor, page, attribute, fields.*color, fields.use);
}

void ReadArrangement(pugi::xml_node arrangement, ProjectEditor& editor) {
  ReadDigits(editor, arrangement, "ROWS", &GalleryProject::textThumbnailsTableRows);
  ReadDigits(editor, arrangement, "COLS", &GalleryProject::textThumbnailsTableColumns);
  ReadDigits(editor, arrangement, "BORDER", &GalleryProject::textThumbnailsTableBorder);
  ReadDigits(editor, arrangement, "CELLSPACING", &GalleryProject::textThumbnailsTableCellSpacing);
  ReadDigits(editor, arrangement, "CELLPADDING", &GalleryProject::textThumbnailsTableCellPadding);
  ReadWord(editor, arrangement, "ALIGN", kTableAlignmentWords, &GalleryProject::comboThumbnailsTableAlignment);
  // The writer calls it BACKGROUND, so a written backdrop is not read back. Kept on purpose.
  ReadText(editor, arrangement, "BACKDROP", &GalleryProject::textThumbnailsTableBackdrop);
  ReadColor(editor, arrangement, "BGCOLOR", &GalleryProject::btnThumbnailsTableBGColor,
            &GalleryProject::checkThumbnailsTableUseBGColor);
}

}  // namespace

ReadResult ReadThumbnailPage(pugi::xml_node page, ProjectEditor& editor) {
  if (!page) return ReadResult::NoThumbnailPage;
  ReadText(editor, page, "PREFIX", &GalleryProject::textThumbnailPageSettingsFilePrefix);
  ReadText(editor, page, "EXTENSION", &GalleryProject::comboThumbnailPageSettingsFileExtension);
  ReadTextOr(editor, page, "BACKGROUND", &GalleryProject::textThumbnailsPageBackdrop, "");
  ReadColors(page, editor, kThumbnailPageColors);
  ReadChildTexts(editor, page, kThumbnailPageTexts);
  const pugi::xml_node arrangement = page.child("ARRANGEMENT");
  if (!arrangement) return ReadResult::NoArrangement;
  ReadArrangement(arrangement, editor);
  ReadChildTexts(editor, page, kThumbnailFrameTexts);
  const pugi::xml_node links = page.child("PAGELINKS");
  if (!links) return ReadResult::NoPageLinks;
  ReadThumbnailPageLinks(links, editor);
  return ReadResult::Complete;
}

ReadResult ReadImagePage(pugi::xml_node page, ProjectEditor& editor) {
  editor.Set(&GalleryProject::checkImageWrapperUse, FlagOf(!page.empty()));
  if (!page) return ReadResult::Complete;
  ReadText(editor, page, "EXTENSION", &GalleryProject::comboImageWrapperSettingsFileExtension);
  ReadTextOr(editor, page, "BACKGROUND", &GalleryProject::textImageWrapperBackdrop, "");
  ReadColors(page, editor, kImagePageColors);
  ReadChildTexts(editor, page, kImagePageTexts);
  const pugi::xml_node links = page.child("PAGELINKS");
  if (!links) return ReadResult::NoPageLinks;
  ReadImagePageLinks(links, editor);
  return ReadResult::Complete;
}

}  // namespace vantorium
