#include "core/generation/PagePhases.h"

#include "core/generation/DirectLinks.h"
#include "core/generation/IndexPage.h"
#include "core/generation/OutputNaming.h"
#include "core/generation/PageEncoding.h"
#include "core/generation/ThumbnailPage.h"
#include "core/generation/WrapperPage.h"

namespace vantorium::generation {
namespace {

PhaseResult WriteThumbnailPage(const RunContext& context, std::int32_t page, std::int32_t firstImage) {
  RunState& run = context.run;
  const std::string name = ThumbnailPageName(run.project, page);
  run.DirectLinksText = BuildDirectLinks(run, page);
  if (auto end = context.Begin("Creating Thumbnail Page File \"" + name + "\"...")) return end;
  const std::string text = BuildThumbnailPage(run, page, firstImage);
  context.Advance(ImagesOnThumbnailPage(run, firstImage));
  return context.Settle(context.target.StoreThumbnailPage(page, EncodePage(text)));
}

PhaseResult WriteWrapperPage(const RunContext& context, std::int32_t image) {
  const RunState& run = context.run;
  const std::string& listText = run.ListText(image);
  if (auto end = context.Begin("Creating Image Wrapper File for \"" + listText + "\"...")) return end;
  const std::string text = BuildWrapperPage(run, image);
  if (auto end = context.Settle(context.target.StoreWrapperPage(listText, EncodePage(text)))) return end;
  context.Advance();
  return kGoOn;
}

}  // namespace

PhaseResult WriteIndexPage(const RunContext& context) {
  if (auto end = context.Begin("Creating Gallery Index File...")) return end;
  return context.Settle(context.target.StoreIndexPage(EncodePage(BuildIndexPage(context.run))));
}

PhaseResult WriteThumbnailPages(const RunContext& context) {
  // The page count uses the rounded product of rows and columns, a page uses their rounded values, so images are
  // counted as they are placed.
  std::int32_t firstImage = 1;
  for (std::int32_t page = 1; page <= context.run.ThumbnailPageCount; ++page) {
    if (auto end = WriteThumbnailPage(context, page, firstImage)) return end;
    firstImage += ImagesOnThumbnailPage(context.run, firstImage);
  }
  return kGoOn;
}

PhaseResult WriteWrapperPages(const RunContext& context) {
  if (!core::IsOn(context.run.project.checkImageWrapperUse)) return kGoOn;
  for (std::int32_t image = 1; image <= context.run.ImageCount; ++image) {
    if (auto end = WriteWrapperPage(context, image)) return end;
  }
  return kGoOn;
}

}  // namespace vantorium::generation
