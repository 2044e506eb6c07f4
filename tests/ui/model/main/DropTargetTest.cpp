#include "ui/model/main/DropTarget.h"

#include <utility>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

constexpr RowExtent kRows[] = {{100, 20}, {125, 20}, {150, 20}};  // rows 4 to 6, with gaps of 5

TEST(DropTarget, IsTheFirstRowThatContainsThePoint) {
  const std::pair<int, std::size_t> cases[] = {{100, 4}, {110, 4}, {120, 4}, {125, 5}, {145, 5}, {170, 6}};
  for (const auto& [y, expected] : cases) EXPECT_EQ(DropTarget(4, kRows, y), expected) << y;
}

TEST(DropTarget, TheEdgeBetweenTwoRowsBelongsToTheUpperOne) {
  constexpr RowExtent kTouching[] = {{0, 20}, {20, 20}};
  EXPECT_EQ(DropTarget(1, kTouching, 20), 1U);
  EXPECT_EQ(DropTarget(1, kTouching, 21), 2U);
}

TEST(DropTarget, AboveAllRowsIsTheFirstVisibleRow) {
  EXPECT_EQ(DropTarget(4, kRows, 99), 4U);
  EXPECT_EQ(DropTarget(4, kRows, -5000), 4U);
}

TEST(DropTarget, ElsewhereIsTheLastRow) {
  EXPECT_EQ(DropTarget(4, kRows, 171), 6U);
  EXPECT_EQ(DropTarget(4, kRows, 122), 6U) << "in a gap between rows";
}

TEST(DropTarget, AnEmptyListHasNoTarget) {
  EXPECT_EQ(DropTarget(1, {}, 10), 0U);
}

}  // namespace
}  // namespace vantorium::ui
