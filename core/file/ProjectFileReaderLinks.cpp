#include "core/file/ProjectFileReaderSections.h"
#include "core/file/ProjectFileReaderValues.h"
#include "env/Text.h"

namespace vantorium::core {
namespace {

/// Whether a comma-separated list contains `word`. A single word is not a list.
bool ListHolds(const std::string& list, const std::string& word) {
  return list.ends_with(',' + word) || list.starts_with(word + ',') || list.find(',' + word + ',') != std::string::npos;
}

LinkPlacement PlacementOfBars(bool top, bool bottom) {
  if (top && bottom) return LinkPlacement::Both;
  if (top) return LinkPlacement::Above;
  return bottom ? LinkPlacement::Below : LinkPlacement::None;
}

void ReadPlace(pugi::xml_node links, ProjectEditor& editor, NumberField field) {
  const auto value = AttributeOf(links, "PLACE");
  const std::string place = env::AsciiUpper(value.value_or(""));
  const bool top = place == "TOP" || ListHolds(place, "TOP");
  const bool bottom = place == "BOTTOM" || ListHolds(place, "BOTTOM");
  if (value && !top && !bottom) return;
  editor.Set(field, NumberOf(PlacementOfBars(top, bottom)));
}

void ReadDirectLinks(pugi::xml_node links, ProjectEditor& editor) {
  const auto direct = AttributeOf(links, "DIRECT");
  editor.Set(&GalleryProject::checkPageLinksThumbnailDirectLinks, FlagOf(direct.has_value()));
  if (!direct) return;
  const bool unlimited = env::EqualsIgnoringCase(*direct, kUnlimitedLinksWord);
  editor.Set(&GalleryProject::textPageLinksThumbnailMaxDirectLinks, unlimited ? "0" : WholeNumber(*direct));
}

std::string LinkPath(pugi::xml_node link, const char* attribute) {
  return std::string(env::WithoutFilePrefix(AttributeOf(link, attribute).value_or("")));
}

/// An absent element or attribute gives an empty text.
LinkSettings ReadLink(pugi::xml_node links, const LinkElement& element) {
  const pugi::xml_node node = links.child(element.element);
  LinkSettings link;
  link.textLinkLabel = TextOrEmpty(node, "CAPTION");
  link.textLinkGraphic = LinkPath(node, "IMAGE");
  if (element.disabledAttribute != nullptr) link.textLinkGraphicDisabled = LinkPath(node, element.disabledAttribute);
  return link;
}

/// Calls `nextIsAbsent` instead of reading NEXT if there is none.
template <typename Action>
void ReadLinks(pugi::xml_node links, ProjectEditor& editor, const TargetFields& target, Action nextIsAbsent) {
  ReadPlace(links, editor, target.linkPlacement);
  for (const LinkElement& element : kLinkElements) {
    const PageLink* const link = LinkTo(target, element.goal);
    if (link == nullptr) continue;
    if (element.goal == LinkGoal::Next && !links.child(element.element)) {
      nextIsAbsent();
    } else {
      editor.Set(link->settings, ReadLink(links, element));
    }
  }
}

}  // namespace

// The two ways of handling an absent NEXT are odd, but existing files depend on them.

void ReadThumbnailPageLinks(pugi::xml_node links, ProjectEditor& editor) {
  ReadDirectLinks(links, editor);
  ReadLinks(links, editor, kThumbnails, [&editor] {
    editor.Set(&GalleryProject::ThumbnailNextLink,
               LinkSettings{editor.Project().ThumbnailNextLink.textLinkLabel, "", ""});
  });
}

void ReadImagePageLinks(pugi::xml_node links, ProjectEditor& editor) {
  ReadLinks(links, editor, kImages, [&editor] { editor.Set(&GalleryProject::ImageFirstLink, LinkSettings{}); });
}

}  // namespace vantorium::core
