#include "core/generation/IndexPage.h"

#include "core/generation/OutputNaming.h"
#include "core/generation/PageParts.h"
#include "core/generation/PageText.h"
#include "core/generation/TemplateTags.h"

namespace vantorium::generation {
namespace {

struct Frame {
  std::string name;
  std::string source;
  std::string size;
};

void AddHead(PageText& page, const RunState& run) {
  page.Line("<HTML>");
  page.Line();
  page.Line("<HEAD>");
  page.Format("<TITLE>{}</TITLE>", run.project.textGalleryTitle);
  page.Line(GeneratorTag());
  page.UserCode("HEAD CODE", ExpandTags(run, run.project.GalleryHeadCode, kNoIndex, kNoIndex));
  page.Line("</HEAD>");
  page.Line();
}

/// A slide show that begins with the first image names its wrapper page, even if there are no wrapper pages.
std::string FirstPage(const RunState& run) {
  const core::GalleryProject& project = run.project;
  const bool beginsWithImage =
      core::IsOn(project.checkGallerySlideShow) && core::SlideShowBeginOf(project) == core::SlideShowBegin::FirstImage;
  return beginsWithImage ? WrapperPageName(project, run.ListText(1)) : ThumbnailPageName(project, 1);
}

void AddSingleFrame(PageText& page, const RunState& run) {
  page.Line(R"(<FRAMESET ROWS="100%,*" BORDER="0">)");
  page.Format(R"(<FRAME NAME="{}" SRC="{}" NORESIZE FRAMEBORDER="0">)", run.project.textThumbnailFrameName,
              FirstPage(run));
  page.Line("</FRAMESET>");
}

std::string SizeText(std::int32_t size, const core::GalleryProject& project) {
  return fmt::format("{}{}", size, core::IsOn(project.checkGalleryFrameSizeInPercent) ? "%" : "");
}

Frame ThumbnailFrame(const RunState& run) {
  const core::GalleryProject& project = run.project;
  const bool sized = core::SizedFrameOf(project) == core::SizedFrame::Thumbnails;
  return {project.textThumbnailFrameName, ThumbnailPageName(project, 1),
          sized ? SizeText(project.ThumbnailFrameSize, project) : "*"};
}

Frame ImageFrame(const RunState& run) {
  const core::GalleryProject& project = run.project;
  const bool sized = core::SizedFrameOf(project) != core::SizedFrame::Thumbnails;
  return {project.comboImageFrameName, ImageTarget(run, 1), sized ? SizeText(project.ImageFrameSize, project) : "*"};
}

// Spaces double where two of these pieces meet, and remain where a piece is empty.
void AddFrames(PageText& page, const core::GalleryProject& project, std::string_view attribute, const Frame& first,
               const Frame& second) {
  const bool borders = core::IsOn(project.checkGalleryFramesDisplayBorders);
  const std::string_view resize = core::IsOn(project.checkGalleryFramesResizable) ? "" : " NORESIZE ";
  const std::string_view frameBorder = borders ? "" : R"( FRAMEBORDER="0" )";
  const std::string_view border = borders ? "" : R"( BORDER="0" )";
  page.Format(R"(<FRAMESET {}="{},{}"{}>)", attribute, first.size, second.size, border);
  for (const Frame* frame : {&first, &second}) {
    page.Format(R"(<FRAME NAME="{}" SRC="{}" {}{}>)", frame->name, frame->source, resize, frameBorder);
  }
  page.Line("</FRAMESET>");
}

void AddTwoFrames(PageText& page, const RunState& run) {
  const Frame thumbnails = ThumbnailFrame(run);
  const Frame image = ImageFrame(run);
  switch (core::LayoutOf(run.project)) {
    case core::GalleryLayout::ThumbnailsLeft:
      return AddFrames(page, run.project, "COLS", thumbnails, image);
    case core::GalleryLayout::ThumbnailsRight:
      return AddFrames(page, run.project, "COLS", image, thumbnails);
    case core::GalleryLayout::ThumbnailsTop:
      return AddFrames(page, run.project, "ROWS", thumbnails, image);
    default:
      return AddFrames(page, run.project, "ROWS", image, thumbnails);
  }
}

}  // namespace

std::string BuildIndexPage(const RunState& run) {
  PageText page;
  AddHead(page, run);
  if (core::IsSingleFrame(run.project)) {
    AddSingleFrame(page, run);
  } else {
    AddTwoFrames(page, run);
  }
  page.Line("</HTML>");
  return page.Take();
}

}  // namespace vantorium::generation
