#include "core/generation/TemplateTags.h"

#include "core/generation/TagTable.h"
#include "env/Text.h"

#include <new>

namespace vantorium::generation {
namespace {

/// An underscore follows this in every tag. Most texts have few underscores, and an underscore has no case, so
/// searching for it with std::string_view::find makes a text without tags as cheap as a copy.
constexpr std::string_view kBeforeUnderscore = "<VANTORIUM";
constexpr std::size_t kLongestTag = 64;

/// Position of the next "<VANTORIUM_" from `start` on, or npos.
std::size_t FindTagStart(std::string_view text, std::size_t start) {
  constexpr std::size_t kLength = kBeforeUnderscore.size();
  std::size_t underscore = text.find('_', start + kLength);
  while (underscore != std::string_view::npos) {
    const std::size_t at = underscore - kLength;
    if (text[at] == '<' && env::EqualsIgnoringCase(text.substr(at, kLength), kBeforeUnderscore)) return at;
    underscore = text.find('_', underscore + 1);
  }
  return std::string_view::npos;
}

/// Returns the tag that begins at `at`, through its ">"; empty if there is no ">" within kLongestTag bytes.
std::string_view TagAt(std::string_view text, std::size_t at) {
  const std::string_view rest = text.substr(at, kLongestTag);
  const std::size_t end = rest.find('>');
  return end == std::string_view::npos ? std::string_view() : rest.substr(0, end + 1);
}

bool Applies(const TagRow& row, const TagScope& scope) {
  switch (row.needs) {
    case TagNeeds::Image:
      return scope.image != kNoIndex;
    case TagNeeds::Page:
      return scope.page != kNoIndex;
    case TagNeeds::Nothing:
      break;
  }
  return true;
}

/// Returns the tag that a row replaces: its own, with one exception. If the link to the next image has no label, the
/// row of its text tag removes the graphic tag and leaves the text tag, to match existing galleries.
std::string_view ReplacedTag(const TagRow& row, const RunState& run) {
  const bool removesGraphic = row.tag == kNextImageTextTag && run.project.ImageNextLink.textLinkLabel.empty();
  return removesGraphic ? kNextImageGraphicTag : row.tag;
}

/// Returns the first row in [from, end) that replaces `tag`, or `end`.
std::size_t RowReplacing(std::string_view tag, const TagScope& scope, std::size_t from, std::size_t end) {
  const auto rows = TagRows();
  for (std::size_t row = from; row < end; ++row) {
    const std::string_view replaced = ReplacedTag(rows[row], scope.run);
    if (replaced.size() == tag.size() && Applies(rows[row], scope) && env::EqualsIgnoringCase(replaced, tag))
      return row;
  }
  return end;
}

/// Returns the first row from `from` on that has something to replace in `text`, or the number of rows.
std::size_t NextRow(std::string_view text, const TagScope& scope, std::size_t from) {
  std::size_t next = TagRows().size();
  for (std::size_t at = FindTagStart(text, 0); at != std::string_view::npos; at = FindTagStart(text, at + 1)) {
    next = RowReplacing(TagAt(text, at), scope, from, next);
  }
  return next;
}

/// Replaces all occurrences of `tag`. Throws std::bad_alloc if that would make the text too long.
std::string WithTagReplaced(std::string_view text, std::string_view tag, std::string_view value) {
  std::size_t length = text.size();
  for (auto at = env::FindIgnoringCase(text, tag); at != std::string_view::npos;
       at = env::FindIgnoringCase(text, tag, at + tag.size())) {
    length += value.size();
    if (length > kLongestExpandedText) throw std::bad_alloc();
  }
  return env::ReplaceAllIgnoringCase(text, tag, value);
}

}  // namespace

// Each row in turn processes the whole text, so that a later row sees what an earlier one inserted, even where that
// forms a tag together with the surrounding text. Rows with nothing to replace are skipped.
std::string ExpandTags(const RunState& run, std::string_view text, std::int32_t imageIndex, std::int32_t pageIndex) {
  std::string expanded(text);
  const TagScope scope{run, imageIndex, pageIndex};
  const auto rows = TagRows();
  for (std::size_t row = NextRow(expanded, scope, 0); row < rows.size(); row = NextRow(expanded, scope, row + 1)) {
    expanded = WithTagReplaced(expanded, ReplacedTag(rows[row], run), rows[row].value(scope));
  }
  return expanded;
}

std::string ExpandDescriptionTags(const RunState& run, std::string text, std::int32_t imageIndex,
                                  std::int32_t pageIndex) {
  if (imageIndex == kNoIndex || FindTagStart(text, 0) == std::string::npos) return text;
  const auto expand = [&](const std::string& part) { return ExpandTags(run, part, imageIndex, pageIndex); };
  for (const DescriptionTags& tags : DescriptionTagRows()) {
    if (env::FindIgnoringCase(text, tags.start) == std::string::npos) continue;
    const std::string description = expand(run.Entry(imageIndex).*tags.fields.text);
    const std::string full =
        expand(run.project.*tags.fields.header) + description + expand(run.project.*tags.fields.footer);
    text = WithTagReplaced(text, tags.tag, description);
    text = WithTagReplaced(text, tags.fullTag, full);
  }
  return text;
}

std::string ExpandAllTags(const RunState& run, std::string_view text, std::int32_t imageIndex, std::int32_t pageIndex) {
  return ExpandDescriptionTags(run, ExpandTags(run, text, imageIndex, pageIndex), imageIndex, pageIndex);
}

std::string DescriptionText(const RunState& run, const core::DescriptionFields& fields, std::int32_t imageIndex) {
  return ExpandAllTags(run, run.project.*fields.header, imageIndex, kNoIndex) +
         ExpandTags(run, run.Entry(imageIndex).*fields.text, imageIndex, kNoIndex) +
         ExpandAllTags(run, run.project.*fields.footer, imageIndex, kNoIndex);
}

}  // namespace vantorium::generation
