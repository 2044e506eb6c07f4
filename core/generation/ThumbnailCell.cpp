#include "core/generation/ThumbnailCell.h"

#include "core/generation/CellAlignments.h"
#include "core/generation/OutputNaming.h"
#include "core/generation/TemplateTags.h"

namespace vantorium::generation {
namespace {

constexpr std::string_view kDescriptionTable = R"(<TABLE WIDTH="100%" BORDER="0" CELLSPACING="1" CELLPADDING="0">)";
constexpr std::string_view kCaptionTable = R"(<TABLE BORDER="0" CELLSPACING="1" CELLPADDING="0">)";
constexpr std::string_view kTableEnd = "</TD></TR></TABLE>";

/// Returns the caption with blanks between it and the thumbnail, as its alignment beside the thumbnail requires.
std::string SpacedCaption(const std::string& caption, core::Choice alignment) {
  constexpr std::string_view kBlank = "&nbsp;";
  const bool isStart = alignment == core::NumberOf(core::Alignment::Start);
  const std::string_view before = isStart ? "" : kBlank;
  const std::string_view after = isStart || alignment == core::NumberOf(core::Alignment::Center) ? kBlank : "";
  return fmt::format("{}{}{}", before, caption, after);
}

/// Builds the content of a cell. The caption's table is nested in that of the description.
class CellContent {
 public:
  CellContent(const RunState& run, std::int32_t page, std::int32_t image)
      : run_(run),
        project_(run.project),
        page_(page),
        image_(image),
        description_(core::DescriptionPlacement(project_.comboThumbnailDescriptionPlacement)),
        hasCaption_(core::IsOn(project_.checkCaptionsThumbnailsRegular)),
        caption_(core::CaptionPlacement(project_.comboCaptionsThumbnailsRegularPlacement)) {}

  std::string Compose() {
    const std::string alt = Alt();
    if (description_ != core::Placement::None) OpenDescription();
    if (hasCaption_) OpenCaption();
    AddThumbnail(alt);
    if (hasCaption_) CloseCaption();
    CloseDescription();
    return std::move(content_);
  }

 private:
  template <typename... Args>
  void Add(fmt::format_string<Args...> format, Args&&... args) {
    fmt::format_to(std::back_inserter(content_), format, std::forward<Args>(args)...);
  }

  [[nodiscard]] std::string Expanded(const std::string& text, std::int32_t page) const {
    return ExpandAllTags(run_, text, image_, page);
  }

  [[nodiscard]] std::string Alt() const {
    if (!core::IsOn(project_.checkCaptionsThumbnailsPopup)) return {};
    return fmt::format(R"(ALT="{}")", Expanded(project_.ThumbnailPopupCaption, page_));
  }

  void OpenDescription() {
    text_ = DescriptionText(run_, core::kThumbnails.description, image_);
    cells_ = ThumbnailDescriptionCells(project_.comboThumbnailDescriptionAlignment, description_);
    const std::int32_t width = run_.MaxThumbWidth;
    // There is no space between WIDTH and the alignment of the thumbnail's cell.
    switch (description_) {
      case core::Placement::Left:
        return Add(R"({}<TR><TD {}>{}</TD><TD WIDTH="{}"{}>)", kDescriptionTable, cells_.text, text_, width,
                   cells_.picture);
      case core::Placement::Right:
        return Add(R"({}<TR><TD WIDTH="{}"{}>)", kDescriptionTable, width, cells_.picture);
      case core::Placement::Above:
        return OpenBelowText(kDescriptionTable);
      case core::Placement::Below:
        return Add("{}<TR><TD {}>", kDescriptionTable, cells_.picture);
      case core::Placement::None:
        break;
    }
  }

  void OpenCaption() {
    const core::Choice alignment = project_.comboCaptionsThumbnailsRegularAlignment;
    text_ = Expanded(project_.ThumbnailRegularCaption, page_);
    if (core::IsBeside(caption_)) text_ = SpacedCaption(text_, alignment);
    cells_ = ThumbnailCaptionCells(alignment, caption_);
    switch (caption_) {
      case core::Placement::Left:
        return Add(R"({}<TR><TD {} WIDTH="100%">{}</TD><TD {}>)", kCaptionTable, cells_.text, text_, cells_.picture);
      case core::Placement::Right:
      case core::Placement::Below:
        return Add("{}<TR><TD {}>", kCaptionTable, cells_.picture);
      case core::Placement::Above:
        return OpenBelowText(kCaptionTable);
      case core::Placement::None:
        break;
    }
  }

  void OpenBelowText(std::string_view table) {
    Add(R"({}<TR><TD {} HEIGHT="100%">{}</TD></TR><TR><TD {}>)", table, cells_.text, text_, cells_.picture);
  }

  /// A preview has no thumbnail files: the browser scales the source.
  void AddThumbnail(const std::string& alt) {
    const ImageRunInfo& info = run_.Info(image_);
    Add(R"(<A HREF="{}" TARGET="{}">)", ImageTarget(run_, image_), project_.comboImageFrameName);
    if (run_.mode == GenerationMode::Preview) {
      Add(R"(<IMG SRC="{}" BORDER="0" WIDTH="{}" HEIGHT="{}" {}></A>)", SourceUrl(run_, image_), info.ThumbWidth,
          info.ThumbHeight, alt);
    } else {
      Add(R"(<IMG SRC="{}{}" BORDER="0" {}></A>)", run_.ThumbUrlPrefix, ThumbnailFileName(project_, info), alt);
    }
  }

  void CloseCaption() {
    switch (caption_) {
      case core::Placement::Right:
        return Add(R"(</TD><TD {} WIDTH="100%">{}{})", cells_.text, text_, kTableEnd);
      case core::Placement::Below:
        return CloseAboveText();
      case core::Placement::Left:
      case core::Placement::Above:
        return Add("{}", kTableEnd);
      case core::Placement::None:
        break;
    }
  }

  /// If there is a caption, text_ and cells_ are the caption's: it appears again in place of the description, to match
  /// existing galleries.
  void CloseDescription() {
    switch (description_) {
      case core::Placement::Right:
        return Add("</TD><TD {}>{}{}", cells_.text, text_, kTableEnd);
      case core::Placement::Below:
        return CloseAboveText();
      case core::Placement::Left:
      case core::Placement::Above:
        return Add("{}", kTableEnd);
      case core::Placement::None:
        break;
    }
  }

  void CloseAboveText() { Add(R"(</TD></TR><TR><TD {} HEIGHT="100%">{}{})", cells_.text, text_, kTableEnd); }

  const RunState& run_;
  const core::GalleryProject& project_;
  std::int32_t page_;
  std::int32_t image_;
  core::Placement description_;
  bool hasCaption_;
  core::Placement caption_;
  std::string text_;  ///< text shown around the thumbnail: the description, then the caption
  CellPair cells_;    ///< alignments of the cells of text_ and thumbnail
  std::string content_;
};

}  // namespace

std::string ThumbnailCellContent(const RunState& run, std::int32_t page, std::int32_t image) {
  return CellContent(run, page, image).Compose();
}

void AddThumbnailCell(PageText& text, const RunState& run, std::int32_t page, std::int32_t image) {
  const auto expanded = [&](const std::string& code) { return ExpandAllTags(run, code, image, page); };
  text.Line("<TD ALIGN=CENTER VALIGN=CENTER>");
  // Never closed. The Index link of the wrapper page jumps here.
  text.Format(R"(<A NAME="{}">)", run.ListText(image));
  text.UserCode("THUMBNAIL IMAGE HEADER", expanded(run.project.ThumbnailHeader));
  text.Line();
  text.Line(ThumbnailCellContent(run, page, image));
  text.UserCode("THUMBNAIL IMAGE FOOTER", expanded(run.project.ThumbnailFooter));
  text.Line();
  text.Line("</TD>");
}

}  // namespace vantorium::generation
