#include "core/generation/PageLinks.h"

#include "core/generation/OutputNaming.h"
#include "env/PathText.h"
#include "env/RuntimeFailure.h"

#include <array>

#include <fmt/format.h>

namespace vantorium {
namespace {

/// The end of a sequence at which a link leads nowhere.
enum class DeadEnd { First, Last, Never };

struct KindRow {
  DeadEnd deadEnd;
  LinkGraphics graphics;
};

constexpr std::array<KindRow, 9> kKinds = {{
    {DeadEnd::First, {&GalleryProject::ImageFirstLink, "_imagelink_first", "_imagelink_first_first"}},
    {DeadEnd::First, {&GalleryProject::ImagePreviousLink, "_imagelink_previous", "_imagelink_previous_first"}},
    {DeadEnd::Last, {&GalleryProject::ImageNextLink, "_imagelink_next", "_imagelink_next_last"}},
    {DeadEnd::Last, {&GalleryProject::ImageLastLink, "_imagelink_last", "_imagelink_last_last"}},
    {DeadEnd::Never, {&GalleryProject::ImageIndexLink, "_imagelink_index", ""}},
    {DeadEnd::First, {&GalleryProject::ThumbnailFirstLink, "_thumblink_first", "_thumblink_first_first"}},
    {DeadEnd::First, {&GalleryProject::ThumbnailPreviousLink, "_thumblink_previous", "_thumblink_previous_first"}},
    {DeadEnd::Last, {&GalleryProject::ThumbnailNextLink, "_thumblink_next", "_thumblink_next_last"}},
    {DeadEnd::Last, {&GalleryProject::ThumbnailLastLink, "_thumblink_last", "_thumblink_last_last"}},
}};

const KindRow& RowOf(LinkKind kind) {
  return kKinds.at(static_cast<std::size_t>(kind));
}

bool IsAtDeadEnd(LinkKind kind, std::int32_t current, std::int32_t total) {
  switch (RowOf(kind).deadEnd) {
    case DeadEnd::First:
      return current == 1;
    case DeadEnd::Last:
      return current == total;
    case DeadEnd::Never:
      break;
  }
  return false;
}

std::string OpeningTag(const std::string& address) {
  return fmt::format(R"(<A HREF="{}">)", address);
}

std::string IndexAnchor(const RunState& run, std::int32_t image) {
  const std::int32_t page = ThumbnailPageOfImage(run.project, image);
  return OpeningTag(ThumbnailPageName(run.project, page) + '#' + run.ListText(image));
}

std::string TargetPage(const RunState& run, LinkKind kind, std::int32_t current, std::int32_t total) {
  const auto wrapper = [&](std::int32_t image) { return WrapperPageName(run.project, run.ListText(image)); };
  const auto page = [&](std::int32_t number) { return ThumbnailPageName(run.project, number); };
  switch (kind) {
    case LinkKind::FirstImage:
      return wrapper(1);
    case LinkKind::PreviousImage:
      return wrapper(current - 1);
    case LinkKind::NextImage:
      return wrapper(current + 1);
    case LinkKind::LastImage:
      return wrapper(total);
    case LinkKind::FirstThumbnailPage:
      return page(1);
    case LinkKind::PreviousThumbnailPage:
      return page(current - 1);
    case LinkKind::NextThumbnailPage:
      return page(current + 1);
    case LinkKind::LastThumbnailPage:
      return page(total);
    case LinkKind::Index:
      break;  // see IndexAnchor
  }
  return {};
}

}  // namespace

const LinkGraphics& GraphicsOf(LinkKind kind) {
  return RowOf(kind).graphics;
}

const LinkSettings& LinkOf(const GalleryProject& project, LinkKind kind) {
  return project.*GraphicsOf(kind).link;
}

std::string BuildLinkAnchor(const RunState& run, LinkKind kind, std::int32_t current, std::int32_t total) {
  if (kind == LinkKind::Index) return IndexAnchor(run, current);
  if (total == 1 || IsAtDeadEnd(kind, current, total)) return {};
  return OpeningTag(TargetPage(run, kind, current, total));
}

std::string BuildLinkGraphic(const RunState& run, LinkKind kind, std::int32_t current, std::int32_t total) {
  if (total == 1) return {};
  const LinkSettings& link = LinkOf(run.project, kind);
  const bool dead = IsAtDeadEnd(kind, current, total);
  // Uses the project's folder in every mode, so a preview does not find these graphics.
  return fmt::format(R"(<IMG SRC="{}{}{}" BORDER="0" ALIGN="MIDDLE">)",
                     UrlFolder(run.project.textImageSettingsSubFolder),
                     dead ? GraphicsOf(kind).nameAtDeadEnd : GraphicsOf(kind).name,
                     GetFileExtension(dead ? link.textLinkGraphicDisabled : link.textLinkGraphic));
}

std::int32_t ThumbnailPageOfImage(const GalleryProject& project, std::int32_t image) {
  const std::int32_t perPage = ThumbnailsPerPage(project);
  if (perPage == 0) throw RuntimeFailure(FailureKind::DivisionByZero);
  return (image - 1) / perPage + 1;
}

}  // namespace vantorium
