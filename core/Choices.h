#pragma once

#include <cstdint>

namespace vantorium::core {

struct GalleryProject;

using Flag = std::int16_t;    ///< kOff or kOn; a project file can hold other numbers, which are neither
using Choice = std::int16_t;  ///< the number of an enumerator below; an index into a fixed list, from 0

inline constexpr Flag kOff = 0;
inline constexpr Flag kOn = 1;

[[nodiscard]] constexpr bool IsOn(Flag flag) {
  return flag == kOn;
}
[[nodiscard]] constexpr bool IsOff(Flag flag) {
  return flag == kOff;
}
[[nodiscard]] constexpr Flag FlagOf(bool on) {
  return on ? kOn : kOff;
}

// The choices of a project with the numbers of the project file. A number that no enumerator has is kept.

enum class GalleryLayout : Choice {
  SingleFrame = 0,
  ThumbnailsLeft = 1,
  ThumbnailsRight = 2,
  ThumbnailsTop = 3,
  ThumbnailsBottom = 4,
};

/// The frame whose size is given; the other one takes the rest.
enum class SizedFrame : Choice { Thumbnails = 0, Image = 1 };

enum class SlideShowBegin : Choice { FirstThumbnailPage = 0, FirstImage = 1 };
enum class SlideShowAction : Choice { NextImage = 0, ThumbnailPageOfImage = 1, FirstThumbnailPage = 2 };
enum class SlideShowStartOver : Choice { FirstThumbnailPage = 0, FirstImage = 1, Stop = 2 };

enum class SortingOrder : Choice {
  Unsorted = 0,
  NameAscending = 1,
  NameDescending = 2,
  PathAscending = 3,
  PathDescending = 4,
  SizeAscending = 5,
  SizeDescending = 6,
  DateAscending = 7,
  DateDescending = 8,
};

enum class TableAlignment : Choice { FitToPage = 0, Left = 1, Center = 2, Right = 3 };

/// Position of a caption or a description relative to its picture. These are the numbers of a description; a caption
/// has no None, so its numbers begin with 0 for Left.
enum class Placement : Choice { None = 0, Left = 1, Right = 2, Above = 3, Below = 4 };

/// Alignment of a caption or a description along the side of its picture: from top to bottom beside it, from left to
/// right above or below it.
enum class Alignment : Choice { Start = 0, Center = 1, End = 2 };

/// The link bars of a page. A set of bits: Both is Above and Below.
enum class LinkPlacement : Choice { None = 0, Above = 1, Below = 2, Both = 3 };

/// Returns the number of an enumerator.
template <typename Enum>
[[nodiscard]] constexpr Choice NumberOf(Enum value) {
  return static_cast<Choice>(value);
}

/// Returns the number of a caption's placement, which is not None.
[[nodiscard]] constexpr Choice CaptionNumberOf(Placement value) {
  return static_cast<Choice>(NumberOf(value) - 1);
}

[[nodiscard]] Placement DescriptionPlacement(Choice setting);
[[nodiscard]] Placement CaptionPlacement(Choice setting);
[[nodiscard]] bool IsBeside(Placement placement);        ///< left or right
[[nodiscard]] bool IsAboveOrBelow(Placement placement);  ///< neither is true of None

/// Whether a page has a link bar above or below its pictures.
[[nodiscard]] bool HasBarAbove(LinkPlacement placement);
[[nodiscard]] bool HasBarBelow(LinkPlacement placement);

[[nodiscard]] GalleryLayout LayoutOf(const GalleryProject& project);
[[nodiscard]] bool IsSingleFrame(const GalleryProject& project);
[[nodiscard]] SizedFrame SizedFrameOf(const GalleryProject& project);

/// Slide shows need the single-frame layout: in the others the thumbnails stay visible.
[[nodiscard]] bool HasSlideShow(const GalleryProject& project);
[[nodiscard]] SlideShowBegin SlideShowBeginOf(const GalleryProject& project);
[[nodiscard]] SlideShowAction SlideShowActionOf(const GalleryProject& project);
[[nodiscard]] SlideShowStartOver SlideShowStartOverOf(const GalleryProject& project);
/// Whether the slide show begins with a thumbnail page and leaves it by itself.
[[nodiscard]] bool StartsByItself(const GalleryProject& project);

[[nodiscard]] SortingOrder SortingOrderOf(const GalleryProject& project);
[[nodiscard]] TableAlignment TableAlignmentOf(const GalleryProject& project);
[[nodiscard]] LinkPlacement ImageLinkPlacement(const GalleryProject& project);
[[nodiscard]] LinkPlacement ThumbnailLinkPlacement(const GalleryProject& project);

}  // namespace vantorium::core
