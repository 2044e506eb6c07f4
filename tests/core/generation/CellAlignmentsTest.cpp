#include "core/generation/CellAlignments.h"

#include <string>

#include <gtest/gtest.h>

namespace vantorium::generation {
namespace {

std::string Attributes(const std::string& align, const std::string& valign) {
  return "ALIGN=\"" + align + "\" VALIGN=\"" + valign + "\"";
}

struct PairCase {
  core::Choice alignment;
  core::Choice placement;  // as stored in the setting
  std::string text;
  std::string picture;
};

const PairCase kDescriptionCases[] = {
    {0, 1, Attributes("LEFT", "TOP"), Attributes("RIGHT", "TOP")},
    {0, 2, Attributes("LEFT", "TOP"), Attributes("LEFT", "TOP")},
    {0, 3, Attributes("LEFT", "BOTTOM"), Attributes("LEFT", "TOP")},
    {0, 4, Attributes("LEFT", "TOP"), Attributes("LEFT", "BOTTOM")},
    {1, 1, Attributes("LEFT", "CENTER"), Attributes("RIGHT", "CENTER")},
    {1, 2, Attributes("LEFT", "CENTER"), Attributes("LEFT", "CENTER")},
    {1, 3, Attributes("CENTER", "BOTTOM"), Attributes("CENTER", "TOP")},
    {1, 4, Attributes("CENTER", "TOP"), Attributes("CENTER", "BOTTOM")},
    {2, 1, Attributes("LEFT", "BOTTOM"), Attributes("RIGHT", "BOTTOM")},
    {2, 2, Attributes("LEFT", "BOTTOM"), Attributes("LEFT", "BOTTOM")},
    {2, 3, Attributes("RIGHT", "BOTTOM"), Attributes("RIGHT", "TOP")},
    {2, 4, Attributes("RIGHT", "TOP"), Attributes("RIGHT", "BOTTOM")},
};

TEST(CellAlignments, OfThumbnailDescriptions) {
  for (const PairCase& each : kDescriptionCases) {
    const CellPair cells = ThumbnailDescriptionCells(each.alignment, core::DescriptionPlacement(each.placement));
    EXPECT_EQ(cells.text, each.text) << each.alignment << ", " << each.placement;
    EXPECT_EQ(cells.picture, each.picture) << each.alignment << ", " << each.placement;
  }
}

/// Captions above and below a picture are the same for thumbnails and images.
const PairCase kCaptionCases[] = {
    {0, 2, Attributes("LEFT", "BOTTOM"), Attributes("LEFT", "TOP")},
    {0, 3, Attributes("LEFT", "TOP"), Attributes("LEFT", "BOTTOM")},
    {1, 2, Attributes("CENTER", "BOTTOM"), Attributes("CENTER", "TOP")},
    {1, 3, Attributes("CENTER", "TOP"), Attributes("CENTER", "BOTTOM")},
    {2, 2, Attributes("RIGHT", "BOTTOM"), Attributes("RIGHT", "TOP")},
    {2, 3, Attributes("RIGHT", "TOP"), Attributes("RIGHT", "BOTTOM")},
};

TEST(CellAlignments, OfCaptionsAboveAndBelow) {
  for (const PairCase& each : kCaptionCases) {
    for (const auto& cellsOf : {ThumbnailCaptionCells, ImageCaptionCells}) {
      const CellPair cells = cellsOf(each.alignment, core::CaptionPlacement(each.placement));
      EXPECT_EQ(cells.text, each.text) << each.alignment << ", " << each.placement;
      EXPECT_EQ(cells.picture, each.picture) << each.alignment << ", " << each.placement;
    }
  }
}

TEST(CellAlignments, OfCaptionsBesideAPictureAreEqualForBothCells) {
  const std::string valigns[] = {"TOP", "CENTER", "BOTTOM"};
  for (core::Choice alignment = 0; alignment < 3; ++alignment) {
    for (core::Choice placement = 0; placement < 2; ++placement) {
      const CellPair thumbnail = ThumbnailCaptionCells(alignment, core::CaptionPlacement(placement));
      EXPECT_EQ(thumbnail.text, Attributes("LEFT", valigns[alignment]));
      EXPECT_EQ(thumbnail.picture, thumbnail.text);
      const CellPair image = ImageCaptionCells(alignment, core::CaptionPlacement(placement));
      EXPECT_EQ(image.text, Attributes(placement == 0 ? "RIGHT" : "LEFT", valigns[alignment]));
      EXPECT_EQ(image.picture, image.text);
    }
  }
}

TEST(CellAlignments, OfImageDescriptionsListTheVerticalOnesFirst) {
  const std::string beside[] = {R"(VALIGN="TOP" ALIGN="LEFT")", R"(VALIGN="CENTER" ALIGN="LEFT")",
                                R"(VALIGN="BOTTOM" ALIGN="LEFT")"};
  const std::string above[] = {R"(VALIGN="BOTTOM" ALIGN="LEFT")", R"(VALIGN="BOTTOM" ALIGN="CENTER")",
                               R"(VALIGN="BOTTOM" ALIGN="RIGHT")"};
  const std::string below[] = {R"(VALIGN="TOP" ALIGN="LEFT")", R"(VALIGN="TOP" ALIGN="CENTER")",
                               R"(VALIGN="TOP" ALIGN="RIGHT")"};
  for (core::Choice alignment = 0; alignment < 3; ++alignment) {
    EXPECT_EQ(ImageDescriptionCell(alignment, core::Placement::Left), beside[alignment]);
    EXPECT_EQ(ImageDescriptionCell(alignment, core::Placement::Right), beside[alignment]);
    EXPECT_EQ(ImageDescriptionCell(alignment, core::Placement::Above), above[alignment]);
    EXPECT_EQ(ImageDescriptionCell(alignment, core::Placement::Below), below[alignment]);
  }
}

TEST(CellAlignments, AreEmptyForUnknownNumbers) {
  for (const core::Choice outside : std::initializer_list<core::Choice>{-32768, -1, 3, 32767}) {
    EXPECT_EQ(ThumbnailDescriptionCells(outside, core::Placement::Left).text, "") << outside;
    EXPECT_EQ(ImageDescriptionCell(outside, core::Placement::Left), "") << outside;
  }
  for (const core::Choice outside : std::initializer_list<core::Choice>{-2, -1, 4, 32767}) {
    EXPECT_EQ(ThumbnailCaptionCells(0, core::CaptionPlacement(outside)).picture, "") << outside;
    EXPECT_EQ(ImageCaptionCells(0, core::CaptionPlacement(outside)).text, "") << outside;
  }
}

}  // namespace
}  // namespace vantorium::generation
