#include "core/generation/IndexPage.h"

#include "core/generation/OutputNaming.h"
#include "core/generation/PageParts.h"
#include "core/generation/PageText.h"
#include "core/generation/TemplateTags.h"

namespace vantorium {
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
  const GalleryProject& project = run.project;
  const bool beginsWithImage = project.checkGallerySlideShow == 1 && project.comboGallerySlideShowBeginWith == 1;
  return beginsWithImage ? WrapperPageName(project, run.ListText(1)) : ThumbnailPageName(project, 1);
}

void AddSingleFrame(PageText& page, const RunState& run) {
  page.Line(R"(<FRAMESET ROWS="100%,*" BORDER="0">)");
  page.Format(R"(<FRAME NAME="{}" SRC="{}" NORESIZE FRAMEBORDER="0">)", run.project.textThumbnailFrameName,
              FirstPage(run));
  page.Line("</FRAMESET>");
}

std::string SizeText(std::int32_t size, const GalleryProject& project) {
  return fmt::format("{}{}", size, project.checkGalleryFrameSizeInPercent == 1 ? "%" : "");
}

Frame ThumbnailFrame(const RunState& run) {
  const GalleryProject& project = run.project;
  const bool sized = project.comboGalleryFrameSizingPriority == 0;
  return {project.textThumbnailFrameName, ThumbnailPageName(project, 1),
          sized ? SizeText(project.ThumbnailFrameSize, project) : "*"};
}

Frame ImageFrame(const RunState& run) {
  const GalleryProject& project = run.project;
  const bool sized = project.comboGalleryFrameSizingPriority != 0;
  return {project.comboImageFrameName, ImageTarget(run, 1), sized ? SizeText(project.ImageFrameSize, project) : "*"};
}

// Spaces double where two of these pieces meet, and remain where a piece is empty.
void AddFrames(PageText& page, const GalleryProject& project, std::string_view attribute, const Frame& first,
               const Frame& second) {
  const bool borders = project.checkGalleryFramesDisplayBorders == 1;
  const std::string_view resize = project.checkGalleryFramesResizable == 1 ? "" : " NORESIZE ";
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
  switch (run.project.comboGalleryLayoutType) {
    case 1:
      return AddFrames(page, run.project, "COLS", thumbnails, image);
    case 2:
      return AddFrames(page, run.project, "COLS", image, thumbnails);
    case 3:
      return AddFrames(page, run.project, "ROWS", thumbnails, image);
    default:
      return AddFrames(page, run.project, "ROWS", image, thumbnails);
  }
}

}  // namespace

std::string BuildIndexPage(const RunState& run) {
  PageText page;
  AddHead(page, run);
  if (run.project.comboGalleryLayoutType == 0) {
    AddSingleFrame(page, run);
  } else {
    AddTwoFrames(page, run);
  }
  page.Line("</HTML>");
  return page.Take();
}

}  // namespace vantorium
