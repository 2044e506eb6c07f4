#include "core/generation/LinkBars.h"

#include "core/generation/PageLinks.h"

namespace vantorium::generation {
namespace {

constexpr std::string_view kEnd = "</A>";
constexpr std::string_view kEndAndBlank = "</A>&nbsp;";
constexpr std::string_view kBlank = "&nbsp;";

/// Builds one bar, for image or page `current` of `total`.
class LinkBar {
 public:
  LinkBar(const RunState& run, std::int32_t current, std::int32_t total)
      : run_(run), current_(current), total_(total) {}

  /// First and Previous: a blank after each form.
  void Leading(core::LinkKind kind) {
    const core::LinkSettings& link = LinkOf(run_.project, kind);
    const std::string anchor = Anchor(kind);
    if (!link.textLinkGraphic.empty()) {
      Add(anchor, Graphic(kind), kEndAndBlank);
      if (link.textLinkLabel.empty()) return;
    }
    Add(anchor, link.textLinkLabel, kEndAndBlank);
  }

  /// Next and Last: a blank before the first form and between the two. A link with a graphic has the text form too if
  /// `testedLabel` is not empty.
  void Trailing(core::LinkKind kind, const std::string& testedLabel) {
    const core::LinkSettings& link = LinkOf(run_.project, kind);
    const std::string anchor = Anchor(kind);
    bar_ += kBlank;
    if (link.textLinkGraphic.empty()) {
      Add(anchor, link.textLinkLabel, kEnd);
      return;
    }
    if (!testedLabel.empty()) Add(anchor, link.textLinkLabel, kEndAndBlank);
    Add(anchor, Graphic(kind), kEnd);
  }

  /// If the link has both forms, the graphic appears on both sides of the text.
  void Index() {
    const core::LinkSettings& link = LinkOf(run_.project, core::LinkKind::Index);
    const std::string anchor = Anchor(core::LinkKind::Index);
    if (link.textLinkGraphic.empty()) {
      Add(anchor, link.textLinkLabel, kEnd);
      return;
    }
    const std::string graphic = Graphic(core::LinkKind::Index);
    Add(anchor, graphic, kEndAndBlank);
    if (link.textLinkLabel.empty()) return;
    Add(anchor, link.textLinkLabel, kEndAndBlank);
    Add(anchor, graphic, kEnd);
  }

  void Text(std::string_view text) { bar_ += text; }

  [[nodiscard]] std::string Take() { return std::move(bar_); }

 private:
  [[nodiscard]] std::string Anchor(core::LinkKind kind) const { return BuildLinkAnchor(run_, kind, current_, total_); }
  [[nodiscard]] std::string Graphic(core::LinkKind kind) const {
    return BuildLinkGraphic(run_, kind, current_, total_);
  }

  void Add(std::string_view anchor, std::string_view shown, std::string_view end) {
    bar_.append(anchor).append(shown).append(end);
  }

  const RunState& run_;
  std::int32_t current_;
  std::int32_t total_;
  std::string bar_;
};

}  // namespace

std::string BuildThumbnailPageBar(const RunState& run, std::int32_t page) {
  if (run.ThumbnailPageCount == 1) return {};
  const core::GalleryProject& project = run.project;
  LinkBar bar(run, page, run.ThumbnailPageCount);
  bar.Leading(core::LinkKind::FirstThumbnailPage);
  bar.Leading(core::LinkKind::PreviousThumbnailPage);
  if (core::IsOn(project.checkPageLinksThumbnailDirectLinks)) bar.Text(run.DirectLinksText);
  bar.Trailing(core::LinkKind::NextThumbnailPage, project.ThumbnailNextLink.textLinkLabel);
  bar.Trailing(core::LinkKind::LastThumbnailPage, project.ThumbnailLastLink.textLinkLabel);
  return bar.Take();
}

std::string BuildImagePageBar(const RunState& run, std::int32_t image) {
  if (run.ImageCount == 1) return {};
  const core::GalleryProject& project = run.project;
  LinkBar bar(run, image, run.ImageCount);
  bar.Leading(core::LinkKind::FirstImage);
  bar.Leading(core::LinkKind::PreviousImage);
  if (core::IsSingleFrame(project)) bar.Index();
  // Next tests the label of Previous, to match existing galleries.
  bar.Trailing(core::LinkKind::NextImage, project.ImagePreviousLink.textLinkLabel);
  bar.Trailing(core::LinkKind::LastImage, project.ImageLastLink.textLinkLabel);
  return bar.Take();
}

}  // namespace vantorium::generation
