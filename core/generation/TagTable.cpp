#include "core/generation/TagTable.h"

#include "core/generation/PageLinks.h"
#include "env/Text.h"

#include <fmt/format.h>

namespace vantorium::generation {
namespace {

using Scope = const TagScope&;

std::string Number(std::int32_t value) {
  return fmt::format_int(value).str();
}

const ImageRunInfo& Info(Scope at) {
  return at.run.Info(at.image);
}

/// The file's date or time in UTC.
template <env::RegionalFormat format>
std::string FileDate(Scope at) {
  return at.run.files.FormatFileTime(Info(at).FileTime, static_cast<int>(format));
}

template <env::RegionalFormat format>
std::string CreationDate(Scope at) {
  return at.run.formats.Format(at.run.GalleryCreationTime, format);
}

struct Place {
  std::int32_t current;
  std::int32_t total;
};

Place PlaceOf(Scope at, core::LinkKind kind) {
  if (core::IsImageLink(kind)) return {at.image, at.run.ImageCount};
  return {at.page, at.run.ThumbnailPageCount};
}

// At the end of the sequence the anchor is empty, but its "</A>" is still written.
template <core::LinkKind kind>
std::string LinkText(Scope at) {
  const std::string& label = LinkOf(at.run.project, kind).textLinkLabel;
  if (label.empty()) return {};
  const auto [current, total] = PlaceOf(at, kind);
  return BuildLinkAnchor(at.run, kind, current, total) + label + "</A>";
}

template <core::LinkKind kind>
std::string LinkGraphic(Scope at) {
  if (LinkOf(at.run.project, kind).textLinkGraphic.empty()) return {};
  const auto [current, total] = PlaceOf(at, kind);
  return BuildLinkAnchor(at.run, kind, current, total) + BuildLinkGraphic(at.run, kind, current, total) + "</A>";
}

constexpr auto kImage = TagNeeds::Image;
constexpr auto kPage = TagNeeds::Page;
constexpr auto kNothing = TagNeeds::Nothing;

// clang-format off
constexpr TagRow kRows[] = {
    {kImage, "<VANTORIUM_IMAGE_INDEX>", [](Scope at) { return Number(at.image); }},
    {kImage, "<VANTORIUM_IMAGE_TITLE>", [](Scope at) { return env::ReplaceAll(at.run.ListText(at.image), "_", " "); }},
    {kImage, "<VANTORIUM_IMAGE_FILENAME>", [](Scope at) { return Info(at).FileName; }},
    {kImage, "<VANTORIUM_IMAGE_FILEDATE_SHORT>", FileDate<env::RegionalFormat::ShortDate>},
    {kImage, "<VANTORIUM_IMAGE_FILEDATE_LONG>", FileDate<env::RegionalFormat::LongDate>},
    {kImage, "<VANTORIUM_IMAGE_FILETIME_SHORT>", FileDate<env::RegionalFormat::ShortTime>},
    {kImage, "<VANTORIUM_IMAGE_FILETIME_LONG>", FileDate<env::RegionalFormat::LongTime>},
    {kImage, "<VANTORIUM_IMAGE_FILESIZE>", [](Scope at) { return Info(at).FileSize; }},
    {kImage, "<VANTORIUM_IMAGE_WIDTH>", [](Scope at) { return Number(Info(at).Width); }},
    {kImage, "<VANTORIUM_IMAGE_HEIGHT>", [](Scope at) { return Number(Info(at).Height); }},
    {kImage, "<VANTORIUM_THUMB_WIDTH>", [](Scope at) { return Number(Info(at).ThumbWidth); }},
    {kImage, "<VANTORIUM_THUMB_HEIGHT>", [](Scope at) { return Number(Info(at).ThumbHeight); }},
    {kImage, "<VANTORIUM_IMAGE_WIDTH_MAX>", [](Scope at) { return Number(at.run.MaxImageWidth); }},
    {kImage, "<VANTORIUM_IMAGE_HEIGHT_MAX>", [](Scope at) { return Number(at.run.MaxImageHeight); }},
    {kImage, "<VANTORIUM_THUMB_WIDTH_MAX>", [](Scope at) { return Number(at.run.MaxThumbWidth); }},
    {kImage, "<VANTORIUM_THUMB_HEIGHT_MAX>", [](Scope at) { return Number(at.run.MaxThumbHeight); }},
    {kNothing, "<VANTORIUM_IMAGE_COUNT>", [](Scope at) { return Number(at.run.ImageCount); }},
    {kPage, "<VANTORIUM_THUMBPAGE_INDEX>", [](Scope at) { return Number(at.page); }},
    {kNothing, "<VANTORIUM_THUMBPAGE_COUNT>", [](Scope at) { return Number(at.run.ThumbnailPageCount); }},
    {kNothing, "<VANTORIUM_GALLERY_TITLE>", [](Scope at) { return at.run.project.textGalleryTitle; }},
    {kNothing, "<VANTORIUM_GALLERY_CREATIONDATE_SHORT>", CreationDate<env::RegionalFormat::ShortDate>},
    {kNothing, "<VANTORIUM_GALLERY_CREATIONDATE_LONG>", CreationDate<env::RegionalFormat::LongDate>},
    {kNothing, "<VANTORIUM_GALLERY_CREATIONTIME_SHORT>", CreationDate<env::RegionalFormat::ShortTime>},
    {kNothing, "<VANTORIUM_GALLERY_CREATIONTIME_LONG>", CreationDate<env::RegionalFormat::LongTime>},
    {kImage, "<VANTORIUM_PAGELINK_FIRSTIMAGE_TEXT>", LinkText<core::LinkKind::FirstImage>},
    {kImage, "<VANTORIUM_PAGELINK_FIRSTIMAGE_GRAPHIC>", LinkGraphic<core::LinkKind::FirstImage>},
    {kImage, "<VANTORIUM_PAGELINK_PREVIMAGE_TEXT>", LinkText<core::LinkKind::PreviousImage>},
    {kImage, "<VANTORIUM_PAGELINK_PREVIMAGE_GRAPHIC>", LinkGraphic<core::LinkKind::PreviousImage>},
    {kImage, kNextImageTextTag, LinkText<core::LinkKind::NextImage>},
    {kImage, kNextImageGraphicTag, LinkGraphic<core::LinkKind::NextImage>},
    {kImage, "<VANTORIUM_PAGELINK_LASTIMAGE_TEXT>", LinkText<core::LinkKind::LastImage>},
    {kImage, "<VANTORIUM_PAGELINK_LASTIMAGE_GRAPHIC>", LinkGraphic<core::LinkKind::LastImage>},
    {kImage, "<VANTORIUM_PAGELINK_INDEX_TEXT>", LinkText<core::LinkKind::Index>},
    {kImage, "<VANTORIUM_PAGELINK_INDEX_GRAPHIC>", LinkGraphic<core::LinkKind::Index>},
    {kPage, "<VANTORIUM_PAGELINK_DIRECTTHUMBPAGE>", [](Scope at) { return at.run.DirectLinksText; }},
    {kPage, "<VANTORIUM_PAGELINK_FIRSTTHUMBPAGE_TEXT>", LinkText<core::LinkKind::FirstThumbnailPage>},
    {kPage, "<VANTORIUM_PAGELINK_FIRSTTHUMBPAGE_GRAPHIC>", LinkGraphic<core::LinkKind::FirstThumbnailPage>},
    {kPage, "<VANTORIUM_PAGELINK_PREVTHUMBPAGE_TEXT>", LinkText<core::LinkKind::PreviousThumbnailPage>},
    {kPage, "<VANTORIUM_PAGELINK_PREVTHUMBPAGE_GRAPHIC>", LinkGraphic<core::LinkKind::PreviousThumbnailPage>},
    {kPage, "<VANTORIUM_PAGELINK_NEXTTHUMBPAGE_TEXT>", LinkText<core::LinkKind::NextThumbnailPage>},
    {kPage, "<VANTORIUM_PAGELINK_NEXTTHUMBPAGE_GRAPHIC>", LinkGraphic<core::LinkKind::NextThumbnailPage>},
    {kPage, "<VANTORIUM_PAGELINK_LASTTHUMBPAGE_TEXT>", LinkText<core::LinkKind::LastThumbnailPage>},
    {kPage, "<VANTORIUM_PAGELINK_LASTTHUMBPAGE_GRAPHIC>", LinkGraphic<core::LinkKind::LastThumbnailPage>},
};
// clang-format on

constexpr DescriptionTags kDescriptionRows[] = {
    {"<VANTORIUM_IMAGE_DESCRIPTION", "<VANTORIUM_IMAGE_DESCRIPTION>", "<VANTORIUM_IMAGE_DESCRIPTION_FULL>",
     core::kImages.description},
    {"<VANTORIUM_THUMB_DESCRIPTION", "<VANTORIUM_THUMB_DESCRIPTION>", "<VANTORIUM_THUMB_DESCRIPTION_FULL>",
     core::kThumbnails.description},
};

constexpr OfferedTag kGalleryTags[] = {
    {"Gallery Creation Date (long)", "<VANTORIUM_GALLERY_CREATIONDATE_LONG>"},
    {"Gallery Creation Date (short)", "<VANTORIUM_GALLERY_CREATIONDATE_SHORT>"},
    {"Gallery Creation Time (long)", "<VANTORIUM_GALLERY_CREATIONTIME_LONG>"},
    {"Gallery Creation Time (short)", "<VANTORIUM_GALLERY_CREATIONTIME_SHORT>"},
    {"Gallery Title", "<VANTORIUM_GALLERY_TITLE>"},
};

constexpr OfferedTag kImageTags[] = {
    {"Image Count", "<VANTORIUM_IMAGE_COUNT>"},
    {"Image File Date (long)", "<VANTORIUM_IMAGE_FILEDATE_LONG>"},
    {"Image File Date (short)", "<VANTORIUM_IMAGE_FILEDATE_SHORT>"},
    {"Image File Time (long)", "<VANTORIUM_IMAGE_FILETIME_LONG>"},
    {"Image File Time (short)", "<VANTORIUM_IMAGE_FILETIME_SHORT>"},
    {"Image File Name", "<VANTORIUM_IMAGE_FILENAME>"},
    {"Image File Size", "<VANTORIUM_IMAGE_FILESIZE>"},
    {"Image Title", "<VANTORIUM_IMAGE_TITLE>"},
    {"Image Index", "<VANTORIUM_IMAGE_INDEX>"},
    {"Image Width", "<VANTORIUM_IMAGE_WIDTH>"},
    {"Image Height", "<VANTORIUM_IMAGE_HEIGHT>"},
    {"Image Width Maximum", "<VANTORIUM_IMAGE_WIDTH_MAX>"},
    {"Image Height Maximum", "<VANTORIUM_IMAGE_HEIGHT_MAX>"},
    {"Image Description", "<VANTORIUM_IMAGE_DESCRIPTION>"},
    {"Image Description (full)", "<VANTORIUM_IMAGE_DESCRIPTION_FULL>"},
};

constexpr OfferedTag kThumbnailTags[] = {
    {"Thumbnail Page Count", "<VANTORIUM_THUMBPAGE_COUNT>"},
    {"Thumbnail Page Index", "<VANTORIUM_THUMBPAGE_INDEX>"},
    {"Thumbnail Width", "<VANTORIUM_THUMB_WIDTH>"},
    {"Thumbnail Height", "<VANTORIUM_THUMB_HEIGHT>"},
    {"Thumbnail Width Maximum", "<VANTORIUM_THUMB_WIDTH_MAX>"},
    {"Thumbnail Height Maximum", "<VANTORIUM_THUMB_HEIGHT_MAX>"},
    {"Thumbnail Description", "<VANTORIUM_THUMB_DESCRIPTION>"},
    {"Thumbnail Description (full)", "<VANTORIUM_THUMB_DESCRIPTION_FULL>"},
};

constexpr OfferedTag kPageLinkTags[] = {
    {"First Image", "<VANTORIUM_PAGELINK_FIRSTIMAGE_TEXT>"},
    {"Previous Image", "<VANTORIUM_PAGELINK_PREVIMAGE_TEXT>"},
    {"Next Image", "<VANTORIUM_PAGELINK_NEXTIMAGE_TEXT>"},
    {"Last Image", "<VANTORIUM_PAGELINK_LASTIMAGE_TEXT>"},
    {"Index Page", "<VANTORIUM_PAGELINK_INDEX_TEXT>"},
    {"First Image (Graphic)", "<VANTORIUM_PAGELINK_FIRSTIMAGE_GRAPHIC>"},
    {"Previous Image (Graphic)", "<VANTORIUM_PAGELINK_PREVIMAGE_GRAPHIC>"},
    {"Next Image (Graphic)", "<VANTORIUM_PAGELINK_NEXTIMAGE_GRAPHIC>"},
    {"Last Image (Graphic)", "<VANTORIUM_PAGELINK_LASTIMAGE_GRAPHIC>"},
    {"Index Page (Graphic)", "<VANTORIUM_PAGELINK_INDEX_GRAPHIC>"},
    {"", ""},
    {"First Thumbnail Page", "<VANTORIUM_PAGELINK_FIRSTTHUMBPAGE_TEXT>"},
    {"Previous Thumbnail Page", "<VANTORIUM_PAGELINK_PREVTHUMBPAGE_TEXT>"},
    {"Next Thumbnail Page", "<VANTORIUM_PAGELINK_NEXTTHUMBPAGE_TEXT>"},
    {"Last Thumbnail Page", "<VANTORIUM_PAGELINK_LASTTHUMBPAGE_TEXT>"},
    {"First Thumbnail Page (Graphic)", "<VANTORIUM_PAGELINK_FIRSTTHUMBPAGE_GRAPHIC>"},
    {"Previous Thumbnail Page (Graphic)", "<VANTORIUM_PAGELINK_PREVTHUMBPAGE_GRAPHIC>"},
    {"Next Thumbnail Page (Graphic)", "<VANTORIUM_PAGELINK_NEXTTHUMBPAGE_GRAPHIC>"},
    {"Last Thumbnail Page (Graphic)", "<VANTORIUM_PAGELINK_LASTTHUMBPAGE_GRAPHIC>"},
    {"", ""},
    {"Direct Thumbnail Page Links", "<VANTORIUM_PAGELINK_DIRECTTHUMBPAGE>"},
};

}  // namespace

std::span<const TagRow> TagRows() {
  return kRows;
}

std::span<const DescriptionTags> DescriptionTagRows() {
  return kDescriptionRows;
}

std::span<const OfferedTag> OfferedTags(TagGroup group) {
  switch (group) {
    case TagGroup::Gallery:
      return kGalleryTags;
    case TagGroup::Image:
      return kImageTags;
    case TagGroup::Thumbnail:
      return kThumbnailTags;
    case TagGroup::PageLink:
      return kPageLinkTags;
  }
  return {};
}

}  // namespace vantorium::generation
