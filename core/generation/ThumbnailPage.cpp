#include "core/generation/ThumbnailPage.h"

#include "core/generation/LinkBars.h"
#include "core/generation/PageParts.h"
#include "core/generation/PageText.h"
#include "core/generation/SlideShow.h"
#include "core/generation/TemplateTags.h"
#include "core/generation/ThumbnailCell.h"
#include "env/Numbers.h"

namespace vantorium::generation {
namespace {

std::int32_t GridNumber(const core::Digits& text) {
  return env::ToInt32(env::ParseNumber(text).value_or(0));
}

/// A single page has no bar.
core::LinkPlacement PlacementOfBars(const RunState& run) {
  return run.ThumbnailPageCount > 1 ? core::ThumbnailLinkPlacement(run.project) : core::LinkPlacement::None;
}

std::string_view DivAlignment(core::TableAlignment alignment) {
  switch (alignment) {
    case core::TableAlignment::Left:
      return "LEFT";
    case core::TableAlignment::Right:
      return "RIGHT";
    case core::TableAlignment::FitToPage:
    case core::TableAlignment::Center:
      break;
  }
  return "CENTER";
}

std::string PageBodyTag(const RunState& run) {
  const core::GalleryProject& project = run.project;
  const std::string backdrop = BackdropAttribute(run, core::kThumbnails.backdrop);
  return BodyTag(project, core::kThumbnails.colors, backdrop);
}

void AddHead(PageText& text, const RunState& run, std::int32_t page) {
  const core::GalleryProject& project = run.project;
  text.Line("<HTML>");
  text.Line("<HEAD>");
  text.Format("<TITLE>{} Index Page {} of {}</TITLE>", project.textGalleryTitle, page, run.ThumbnailPageCount);
  text.Line(GeneratorTag());
  if (const auto start = SlideShowStart(run)) text.Line(RefreshTag(project.textGallerySlideShowAutoStartDelay, *start));
  text.UserCode("HEAD CODE", ExpandTags(run, project.ThumbnailPageHeadCode, kNoIndex, page));
  text.Line("</HEAD>");
}

void AddTableTag(PageText& text, const RunState& run) {
  const core::GalleryProject& project = run.project;
  std::string color;
  if (core::IsOn(project.checkThumbnailsTableUseBGColor)) {
    color = fmt::format(R"(BGCOLOR="#{}")", ColorToHtml(project.btnThumbnailsTableBGColor));
  }
  text.Format(R"(<TABLE {}{} BORDER={} CELLSPACING="{}" CELLPADDING="{}"{}>)", color,
              BackdropAttribute(run, core::kTableBackdrop), project.textThumbnailsTableBorder,
              project.textThumbnailsTableCellSpacing, project.textThumbnailsTableCellPadding,
              core::TableAlignmentOf(project) == core::TableAlignment::FitToPage ? R"( WIDTH="100%")" : "");
}

/// The last row of the gallery is not padded with empty cells.
void AddGrid(PageText& text, const RunState& run, std::int32_t page, std::int32_t firstImage) {
  const std::int32_t rows = GridNumber(run.project.textThumbnailsTableRows);
  const std::int32_t columns = GridNumber(run.project.textThumbnailsTableColumns);
  std::int32_t image = firstImage;
  for (std::int32_t row = 1; row <= rows && image <= run.ImageCount; ++row) {
    text.Line("<TR>");
    for (std::int32_t column = 1; column <= columns && image <= run.ImageCount; ++column) {
      AddThumbnailCell(text, run, page, image++);
    }
    text.Line("</TR>");
  }
}

void AddTable(PageText& text, const RunState& run, std::int32_t page, std::int32_t firstImage) {
  const std::string bar = BuildThumbnailPageBar(run, page);
  text.Format(R"(<DIV ALIGN="{}">)", DivAlignment(core::TableAlignmentOf(run.project)));
  if (core::HasBarAbove(PlacementOfBars(run))) text.Line(bar);
  AddTableTag(text, run);
  AddGrid(text, run, page, firstImage);
  text.Line("</TABLE>");
  if (core::HasBarBelow(PlacementOfBars(run))) text.Line(bar);
  text.Line("</DIV>");
}

}  // namespace

std::int32_t ImagesOnThumbnailPage(const RunState& run, std::int32_t firstImage) {
  const std::int64_t rows = std::max(GridNumber(run.project.textThumbnailsTableRows), 0);
  const std::int64_t columns = std::max(GridNumber(run.project.textThumbnailsTableColumns), 0);
  const std::int64_t imagesLeft = run.ImageCount - firstImage + 1;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(imagesLeft, 0, rows * columns));
}

std::string BuildThumbnailPage(const RunState& run, std::int32_t page, std::int32_t firstImage) {
  const core::GalleryProject& project = run.project;
  PageText text;
  AddHead(text, run, page);
  text.Line(PageBodyTag(run));
  text.Line();
  text.UserCode("BODY HEADER", ExpandTags(run, project.ThumbnailPageBodyHeader, kNoIndex, page));
  text.Line();
  AddTable(text, run, page, firstImage);
  text.Line();
  text.UserCode("BODY FOOTER", ExpandTags(run, project.ThumbnailPageBodyFooter, kNoIndex, page));
  text.Line();
  text.Line("</BODY>");
  text.Line("</HTML>");
  return text.Take();
}

}  // namespace vantorium::generation
