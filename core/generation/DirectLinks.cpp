#include "core/generation/DirectLinks.h"

#include "env/Numbers.h"

#include <algorithm>

#include <fmt/format.h>

namespace vantorium::generation {
namespace {

struct PageRange {
  std::int64_t from;
  std::int64_t to;
};

/// The linked pages: `most` of them around `page`, or all if `most` is less than 1.
PageRange LinkedPages(std::int64_t page, std::int64_t pageCount, std::int64_t most) {
  if (most < 1) return {1, pageCount};
  const std::int64_t after = most / 2;
  const std::int64_t before = most % 2 == 1 ? after : after - 1;
  PageRange range{page - before, page + after};
  if (range.from < 1) {
    range.to += 1 - range.from;
    range.from = 1;
  }
  if (range.to > pageCount) {
    range.from -= range.to - pageCount;
    range.to = pageCount;
  }
  return {std::max<std::int64_t>(range.from, 1), std::min(range.to, pageCount)};
}

/// Appends links to pages. A gallery can have as many links as the square of its pages, so the parts that all links
/// share are built once.
class LinkAppender {
 public:
  explicit LinkAppender(const core::GalleryProject& project)
      : opening_(R"(<A HREF=")" + project.textThumbnailPageSettingsFilePrefix),
        afterNumber_(project.comboThumbnailPageSettingsFileExtension + R"(">)") {}

  [[nodiscard]] std::size_t LongestLink() const { return opening_.size() + afterNumber_.size() + kNumbersAndEnd; }

  void Append(std::string& text, std::int64_t page, std::string_view label) const {
    text.append(opening_).append(fmt::format_int(page).c_str());
    text.append(afterNumber_).append(label).append("</A>");
  }

 private:
  static constexpr std::size_t kNumbersAndEnd = 2 * 10 + 5;
  std::string opening_;
  std::string afterNumber_;
};

}  // namespace

std::string BuildDirectLinks(const RunState& run, std::int32_t page) {
  const std::int32_t most = env::ParseInt32(run.project.textPageLinksThumbnailMaxDirectLinks);
  const PageRange range = LinkedPages(page, run.ThumbnailPageCount, most);
  const LinkAppender links(run.project);

  std::string text;
  text.reserve(static_cast<std::size_t>(std::max<std::int64_t>(range.to - range.from + 3, 0)) * links.LongestLink());
  if (range.from > 1) {
    links.Append(text, range.from - 1, "...");
    text += ' ';
  }
  for (std::int64_t number = range.from; number <= range.to; ++number) {
    if (number > range.from) text += ' ';
    const fmt::format_int label(number);
    if (number == page) {
      text.append(label.data(), label.size());
    } else {
      links.Append(text, number, {label.data(), label.size()});
    }
  }
  if (range.to < run.ThumbnailPageCount) {
    text += ' ';
    links.Append(text, range.to + 1, "...");
  }
  return text;
}

}  // namespace vantorium::generation
