// Templates with tags, compared with a plain implementation. The first line of the input is the template, the others
// are the texts that replace the tags.
#include "core/generation/TagTable.h"
#include "core/generation/TemplateTags.h"
#include "env/RuntimeFailure.h"
#include "env/Text.h"
#include "tests/fuzz/FuzzTarget.h"

#include <new>

using namespace vantorium;

namespace {

constexpr std::int32_t kImageCount = 3;

/// Three images on three pages. All three have the texts of the input.
class Run {
 public:
  Run() { project_.textThumbnailsTableRows = project_.textThumbnailsTableColumns = "1"; }
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;

  void TakeTexts(std::string_view lines) {
    for (std::string* text : {&project_.textGalleryTitle, &project_.ImageFirstLink.textLinkLabel,
                              &project_.ImageNextLink.textLinkLabel, &project_.ImageNextLink.textLinkGraphic,
                              &project_.ImageIndexLink.textLinkLabel, &project_.ThumbnailNextLink.textLinkLabel,
                              &project_.textHeader, &project_.textThumbFooter, &state.DirectLinksText}) {
      *text = fuzz::TakePart(lines, '\n');
    }
    const std::string name = fuzz::TakePart(lines, '\n');
    const std::string description = fuzz::TakePart(lines, '\n');
    for (std::int32_t i = 1; i <= kImageCount; ++i) AddImage(name, description);
    state.ImageCount = state.ThumbnailPageCount = kImageCount;
  }

 private:
  void AddImage(const std::string& name, const std::string& description) {
    generation::ImageRunInfo info;
    info.Path = "C:\\" + name;
    info.FileName = name;
    state.RunInfo.push_back(info);
    images_.Insert(images_.Count() + 1, {.ImageName = name,
                                         .SourcePath = info.Path,
                                         .SizeKey = {},
                                         .DateKey = {},
                                         .ImageDescription = description,
                                         .ThumbnailDescription = description});
  }

  core::GalleryProject project_;
  core::ImageList images_;
  env::PathMap paths_{{{'C', "/"}}};
  // Shared because they are expensive to make.
  static const env::RegionalFormats& Formats() {
    static const env::RegionalFormats formats{"en_US"};
    return formats;
  }
  env::mFileFunctions files_{paths_, Formats()};

 public:
  generation::RunState state{.project = project_, .images = images_, .files = files_, .formats = Formats()};
};

/// A plain implementation of ExpandTags: applies every row to the whole text.
std::string ExpandedPlainly(const generation::RunState& run, std::string text, std::int32_t image, std::int32_t page) {
  for (const generation::TagRow& row : generation::TagRows()) {
    if ((row.needs == generation::TagNeeds::Image && image == generation::kNoIndex) ||
        (row.needs == generation::TagNeeds::Page && page == generation::kNoIndex)) {
      continue;
    }
    const bool removesGraphic =
        row.tag == generation::kNextImageTextTag && run.project.ImageNextLink.textLinkLabel.empty();
    const std::string_view tag = removesGraphic ? generation::kNextImageGraphicTag : row.tag;
    if (env::FindIgnoringCase(text, tag) == std::string::npos) continue;
    text = env::ReplaceAllIgnoringCase(text, tag, row.value({run, image, page}));
  }
  return text;
}

void Check(const generation::RunState& run, const std::string& text, std::int32_t image, std::int32_t page) {
  std::string expanded;
  try {
    expanded = generation::ExpandTags(run, text, image, page);
    std::ignore = generation::ExpandAllTags(run, text, image, page);
  } catch (const std::bad_alloc&) {
    return;  // texts that contain each other's tags grow without limit
  }
  fuzz::RequireEqual(expanded, ExpandedPlainly(run, text, image, page), "tags are replaced row by row");
  if (env::FindIgnoringCase(text, "<VANTORIUM_") == std::string::npos) {
    fuzz::RequireEqual(generation::ExpandAllTags(run, text, image, page), text, "a text without tags stays");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input = fuzz::InputText(data, size);
  std::string_view lines = input;
  const std::string text = fuzz::TakePart(lines, '\n');
  Run run;
  run.TakeTexts(lines);
  Check(run.state, text, 1, generation::kNoIndex);
  Check(run.state, text, 2, 2);
  Check(run.state, text, generation::kNoIndex, kImageCount);
  Check(run.state, text, generation::kNoIndex, generation::kNoIndex);
  return 0;
}
