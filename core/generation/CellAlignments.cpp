#include "core/generation/CellAlignments.h"

namespace vantorium::generation {
namespace {

constexpr std::string_view kLeftTop = R"(ALIGN="LEFT" VALIGN="TOP")";
constexpr std::string_view kLeftCenter = R"(ALIGN="LEFT" VALIGN="CENTER")";
constexpr std::string_view kLeftBottom = R"(ALIGN="LEFT" VALIGN="BOTTOM")";
constexpr std::string_view kCenterTop = R"(ALIGN="CENTER" VALIGN="TOP")";
constexpr std::string_view kCenterBottom = R"(ALIGN="CENTER" VALIGN="BOTTOM")";
constexpr std::string_view kRightTop = R"(ALIGN="RIGHT" VALIGN="TOP")";
constexpr std::string_view kRightCenter = R"(ALIGN="RIGHT" VALIGN="CENTER")";
constexpr std::string_view kRightBottom = R"(ALIGN="RIGHT" VALIGN="BOTTOM")";

// Rows are alignments, columns the placements left, right, above, below.
template <typename Cell>
using Table = Cell[3][4];

constexpr Table<CellPair> kThumbnailDescription = {
    {{kLeftTop, kRightTop}, {kLeftTop, kLeftTop}, {kLeftBottom, kLeftTop}, {kLeftTop, kLeftBottom}},
    {{kLeftCenter, kRightCenter}, {kLeftCenter, kLeftCenter}, {kCenterBottom, kCenterTop}, {kCenterTop, kCenterBottom}},
    {{kLeftBottom, kRightBottom}, {kLeftBottom, kLeftBottom}, {kRightBottom, kRightTop}, {kRightTop, kRightBottom}}};

constexpr Table<CellPair> kThumbnailCaption = {
    {{kLeftTop, kLeftTop}, {kLeftTop, kLeftTop}, {kLeftBottom, kLeftTop}, {kLeftTop, kLeftBottom}},
    {{kLeftCenter, kLeftCenter}, {kLeftCenter, kLeftCenter}, {kCenterBottom, kCenterTop}, {kCenterTop, kCenterBottom}},
    {{kLeftBottom, kLeftBottom}, {kLeftBottom, kLeftBottom}, {kRightBottom, kRightTop}, {kRightTop, kRightBottom}}};

constexpr Table<CellPair> kImageCaption = {
    {{kRightTop, kRightTop}, {kLeftTop, kLeftTop}, {kLeftBottom, kLeftTop}, {kLeftTop, kLeftBottom}},
    {{kRightCenter, kRightCenter},
     {kLeftCenter, kLeftCenter},
     {kCenterBottom, kCenterTop},
     {kCenterTop, kCenterBottom}},
    {{kRightBottom, kRightBottom}, {kLeftBottom, kLeftBottom}, {kRightBottom, kRightTop}, {kRightTop, kRightBottom}}};

constexpr Table<std::string_view> kImageDescription = {
    {R"(VALIGN="TOP" ALIGN="LEFT")", R"(VALIGN="TOP" ALIGN="LEFT")", R"(VALIGN="BOTTOM" ALIGN="LEFT")",
     R"(VALIGN="TOP" ALIGN="LEFT")"},
    {R"(VALIGN="CENTER" ALIGN="LEFT")", R"(VALIGN="CENTER" ALIGN="LEFT")", R"(VALIGN="BOTTOM" ALIGN="CENTER")",
     R"(VALIGN="TOP" ALIGN="CENTER")"},
    {R"(VALIGN="BOTTOM" ALIGN="LEFT")", R"(VALIGN="BOTTOM" ALIGN="LEFT")", R"(VALIGN="BOTTOM" ALIGN="RIGHT")",
     R"(VALIGN="TOP" ALIGN="RIGHT")"}};

template <typename Cell>
Cell Lookup(const Table<Cell>& table, core::Choice alignment, core::Placement placement) {
  if (alignment < core::NumberOf(core::Alignment::Start) || alignment > core::NumberOf(core::Alignment::End)) return {};
  if (!core::IsBeside(placement) && !core::IsAboveOrBelow(placement)) return {};
  return table[alignment][core::NumberOf(placement) - core::NumberOf(core::Placement::Left)];
}

}  // namespace

CellPair ThumbnailDescriptionCells(core::Choice alignment, core::Placement placement) {
  return Lookup(kThumbnailDescription, alignment, placement);
}

CellPair ThumbnailCaptionCells(core::Choice alignment, core::Placement placement) {
  return Lookup(kThumbnailCaption, alignment, placement);
}

CellPair ImageCaptionCells(core::Choice alignment, core::Placement placement) {
  return Lookup(kImageCaption, alignment, placement);
}

std::string_view ImageDescriptionCell(core::Choice alignment, core::Placement placement) {
  return Lookup(kImageDescription, alignment, placement);
}

}  // namespace vantorium::generation
