#include "core/file/ProjectFileElements.h"
#include "core/file/ProjectFileFields.h"
#include "env/Numbers.h"

namespace vantorium::core {
namespace {

void PutAttributeUnlessEmpty(pugi::xml_node element, const char* name, std::string_view value) {
  if (!value.empty()) PutAttribute(element, name, value);
}

void PutColors(pugi::xml_node page, const GalleryProject& project, const PageColorFields& fields) {
  if (!IsOn(project.*fields.use)) return;
  for (const auto& [attribute, color] : kColorAttributes) {
    PutAttribute(page, attribute, ColorToHex(project.*(fields.*color)));
  }
}

void PutPageAttributes(pugi::xml_node page, const GalleryProject& project, const TargetFields& target,
                       std::string_view prefix) {
  PutAttribute(page, "PREFIX", prefix);
  PutAttribute(page, "EXTENSION", project.*target.extension);
  PutColors(page, project, target.colors);
  PutAttributeUnlessEmpty(page, "BACKGROUND", project.*target.backdrop.source);
}

void PutTexts(pugi::xml_node page, const GalleryProject& project, const TargetFields& target,
              std::span<const TextElement> texts) {
  for (const TextElement& text : texts) {
    PutTextElementUnlessEmpty(page, text.element, project.*(target.codes.*text.text));
  }
}

std::string LinkPath(const std::string& path) {
  return path.empty() ? path : std::string(kFilePrefix) + path;
}

void PutLinks(pugi::xml_node links, const GalleryProject& project, const TargetFields& target) {
  PutAttribute(links, "PLACE", kLinkPlaceWords, project.*target.linkPlacement);
  for (const LinkElement& element : kLinkElements) {
    const PageLink* const pageLink = LinkTo(target, element.goal);
    if (pageLink == nullptr) continue;
    const LinkSettings& link = project.*pageLink->settings;
    pugi::xml_node node = links.append_child(element.element);
    PutAttribute(node, "CAPTION", link.textLinkLabel);
    PutAttribute(node, "IMAGE", LinkPath(link.textLinkGraphic));
    if (element.disabledAttribute != nullptr) {
      PutAttribute(node, element.disabledAttribute, LinkPath(link.textLinkGraphicDisabled));
    }
  }
}

void PutArrangement(pugi::xml_node page, const GalleryProject& project) {
  pugi::xml_node arrangement = page.append_child("ARRANGEMENT");
  PutAttribute(arrangement, "ROWS", project.textThumbnailsTableRows);
  PutAttribute(arrangement, "COLS", project.textThumbnailsTableColumns);
  PutAttribute(arrangement, "ALIGN", kTableAlignmentWords, project.comboThumbnailsTableAlignment);
  PutPlainAttributes(arrangement, project, kArrangementAttributes);
  PutAttributeUnlessEmpty(arrangement, "BACKGROUND", project.textThumbnailsTableBackdrop);
  if (IsOn(project.checkThumbnailsTableUseBGColor)) {
    PutAttribute(arrangement, "BGCOLOR", ColorToHex(project.btnThumbnailsTableBGColor));
  }
}

std::string_view DirectLinks(const GalleryProject& project) {
  const std::string& most = project.textPageLinksThumbnailMaxDirectLinks;
  return env::ParseNumber(most) == 0.0 ? kUnlimitedLinksWord : std::string_view(most);
}

}  // namespace

void PutThumbnailPage(pugi::xml_node gallery, const GalleryProject& project) {
  pugi::xml_node page = gallery.append_child("THUMBNAILPAGE");
  PutPageAttributes(page, project, kThumbnails, project.textThumbnailPageSettingsFilePrefix);
  PutTexts(page, project, kThumbnails, kPageTexts);
  PutArrangement(page, project);
  PutTexts(page, project, kThumbnails, kThumbnailTexts);
  pugi::xml_node links = page.append_child("PAGELINKS");
  if (IsOn(project.checkPageLinksThumbnailDirectLinks)) PutAttribute(links, "DIRECT", DirectLinks(project));
  PutLinks(links, project, kThumbnails);
}

void PutImagePage(pugi::xml_node gallery, const GalleryProject& project) {
  pugi::xml_node page = gallery.append_child("IMAGEPAGE");
  PutPageAttributes(page, project, kImages, "");
  PutAttribute(page, "USE", project.checkImageWrapperUse);
  PutTexts(page, project, kImages, kPageTexts);
  PutTexts(page, project, kImages, kImageTexts);
  PutLinks(page.append_child("PAGELINKS"), project, kImages);
}

}  // namespace vantorium::core
