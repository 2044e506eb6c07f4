#include "core/generation/PageLinks.h"

#include "core/generation/OutputNaming.h"
#include "env/PathText.h"
#include "env/RuntimeFailure.h"

#include <fmt/format.h>

namespace vantorium::generation {
namespace {

/// Whether image or page `current` of `total` is where a link leads nowhere.
bool IsAtDeadEnd(core::LinkGoal goal, std::int32_t current, std::int32_t total) {
  switch (goal) {
    case core::LinkGoal::First:
    case core::LinkGoal::Previous:
      return current == 1;
    case core::LinkGoal::Next:
    case core::LinkGoal::Last:
      return current == total;
    case core::LinkGoal::Index:
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

/// Returns the number of the image or page to which a link leads from `current` of `total`.
std::int32_t Destination(core::LinkGoal goal, std::int32_t current, std::int32_t total) {
  switch (goal) {
    case core::LinkGoal::First:
      return 1;
    case core::LinkGoal::Previous:
      return current - 1;
    case core::LinkGoal::Next:
      return current + 1;
    case core::LinkGoal::Last:
      return total;
    case core::LinkGoal::Index:
      break;  // see IndexAnchor
  }
  return current;
}

}  // namespace

const core::LinkSettings& LinkOf(const core::GalleryProject& project, core::LinkKind kind) {
  return project.*core::PageLinkOf(kind).settings;
}

std::string BuildLinkAnchor(const RunState& run, core::LinkKind kind, std::int32_t current, std::int32_t total) {
  if (kind == core::LinkKind::Index) return IndexAnchor(run, current);
  const core::LinkGoal goal = core::PageLinkOf(kind).goal;
  if (total == 1 || IsAtDeadEnd(goal, current, total)) return {};
  const std::int32_t to = Destination(goal, current, total);
  return OpeningTag(core::IsImageLink(kind) ? WrapperPageName(run.project, run.ListText(to))
                                            : ThumbnailPageName(run.project, to));
}

std::string BuildLinkGraphic(const RunState& run, core::LinkKind kind, std::int32_t current, std::int32_t total) {
  if (total == 1) return {};
  const core::PageLink& link = core::PageLinkOf(kind);
  const core::LinkSettings& settings = run.project.*link.settings;
  const bool dead = IsAtDeadEnd(link.goal, current, total);
  // Uses the project's folder in every mode, so a preview does not find these graphics.
  return fmt::format(R"(<IMG SRC="{}{}{}" BORDER="0" ALIGN="MIDDLE">)",
                     UrlFolder(run.project.textImageSettingsSubFolder), dead ? link.disabledGraphic : link.graphic,
                     env::GetFileExtension(dead ? settings.textLinkGraphicDisabled : settings.textLinkGraphic));
}

std::int32_t ThumbnailPageOfImage(const core::GalleryProject& project, std::int32_t image) {
  const std::int32_t perPage = core::ThumbnailsPerPage(project);
  if (perPage == 0) throw env::RuntimeFailure(env::FailureKind::DivisionByZero);
  return (image - 1) / perPage + 1;
}

}  // namespace vantorium::generation
