#include "core/generation/WrapperPage.h"

#include "core/generation/LinkBars.h"
#include "core/generation/PageParts.h"
#include "core/generation/PageText.h"
#include "core/generation/SlideShow.h"
#include "core/generation/TemplateTags.h"
#include "core/generation/WrapperContent.h"

namespace vantorium::generation {
namespace {

/// If the thumbnail pages have the same backdrop, uses their copy of it.
std::string PageBodyTag(const RunState& run) {
  const core::GalleryProject& project = run.project;
  const bool shared = project.textImageWrapperBackdrop == project.textThumbnailsPageBackdrop;
  const std::string backdrop = BackdropAttribute(run, (shared ? core::kThumbnails : core::kImages).backdrop);
  return BodyTag(project, core::kImages.colors, backdrop);
}

void AddHead(PageText& page, const RunState& run, std::int32_t image) {
  constexpr std::string_view kIndent = "  ";
  const core::GalleryProject& project = run.project;
  page.Line("<HTML>");
  page.Line("<HEAD>");
  page.Format("<TITLE>{} Image {} of {}</TITLE>", project.textGalleryTitle, image, run.ImageCount);
  page.Line(GeneratorTag());
  if (const auto next = SlideAfter(run, image)) page.Line(RefreshTag(project.textGallerySlideShowDelay, *next));
  page.UserCode("HEAD CODE", ExpandTags(run, project.ImagePageHeadCode, image, kNoIndex), kIndent);
  page.Line("</HEAD>");
  page.Line();
}

void AddImage(PageText& page, const RunState& run, std::int32_t image) {
  const auto expanded = [&](const std::string& code) { return ExpandAllTags(run, code, image, kNoIndex); };
  page.UserCode("IMAGE HEADER", expanded(run.project.ImageHeader));
  page.Line();
  page.Line(WrapperContent(run, image));
  page.Line();
  page.UserCode("IMAGE FOOTER", expanded(run.project.ImageFooter));
  page.Line();
}

/// With one image the bar is empty, but its lines are still written.
void AddImageWithBars(PageText& page, const RunState& run, std::int32_t image) {
  constexpr std::string_view kLineBreak = "<BR>";
  const std::string bar = BuildImagePageBar(run, image);
  if (core::HasBarAbove(core::ImageLinkPlacement(run.project))) {
    page.Line(bar);
    page.Line(kLineBreak);
  }
  AddImage(page, run, image);
  if (core::HasBarBelow(core::ImageLinkPlacement(run.project))) {
    page.Line(kLineBreak);
    page.Line(bar);
  }
}

}  // namespace

std::string BuildWrapperPage(const RunState& run, std::int32_t image) {
  const auto expanded = [&](const std::string& code) { return ExpandAllTags(run, code, image, kNoIndex); };
  PageText page;
  AddHead(page, run, image);
  page.Line(PageBodyTag(run));
  page.UserCode("BODY HEADER", expanded(run.project.ImagePageBodyHeader));
  page.Line();
  AddImageWithBars(page, run, image);
  page.Line("<BR><BR>");
  page.Line();
  page.Line();
  page.UserCode("BODY FOOTER", expanded(run.project.ImagePageBodyFooter));
  page.Line();
  page.Line("</BODY>");
  page.Line("</HTML>");
  return page.Take();
}

}  // namespace vantorium::generation
