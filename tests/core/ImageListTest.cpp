#include "core/ImageList.h"
#include "env/RuntimeFailure.h"

#include <algorithm>
#include <functional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace vantorium::core {
namespace {

using Names = std::vector<std::string>;

ImageList ListOf(const Names& names) {
  ImageList list;
  for (const std::string& name : names) {
    list.Insert(list.Count() + 1, {.ImageName = name,
                                   .SourcePath = "C:\\" + name,
                                   .SizeKey = {},
                                   .DateKey = {},
                                   .ImageDescription = "about " + name,
                                   .ThumbnailDescription = {}});
  }
  return list;
}

Names NamesOf(const ImageList& list) {
  Names names;
  for (std::size_t i = 1; i <= list.Count(); ++i) names.push_back(list.Entry(i).ImageName);
  return names;
}

Names SelectedNames(const ImageList& list) {
  Names names;
  for (std::size_t i = 1; i <= list.Count(); ++i) {
    if (list.IsSelected(i)) names.push_back(list.Entry(i).ImageName);
  }
  return names;
}

std::string CurrentName(const ImageList& list) {
  return list.Current() == 0 ? "none" : list.Entry(list.Current()).ImageName;
}

void ExpectOutOfBounds(const std::function<void()>& operation) {
  try {
    operation();
    ADD_FAILURE() << "nothing was thrown";
  } catch (const env::RuntimeFailure& failure) {
    EXPECT_EQ(failure.Number(), static_cast<std::int32_t>(env::FailureKind::IndexOutOfBounds));
  }
}

ImageEntry Named(const std::string& name) {
  ImageEntry entry;
  entry.ImageName = name;
  return entry;
}

constexpr ListOrder kByName = {SortColumn::ImageName, SortDirection::Ascending};
constexpr ListOrder kByNameDown = {SortColumn::ImageName, SortDirection::Descending};

TEST(ImageList, RowsAreInsertedAtTheirIndex) {
  ImageList list;
  EXPECT_TRUE(list.Empty());
  EXPECT_EQ(list.Insert(1, Named("b")), 1U);
  EXPECT_EQ(list.Insert(1, Named("a")), 1U);
  EXPECT_EQ(list.Insert(3, Named("d")), 3U);
  EXPECT_EQ(list.Insert(3, Named("c")), 3U);
  EXPECT_EQ(NamesOf(list), (Names{"a", "b", "c", "d"}));
  EXPECT_EQ(list.Count(), 4U);
}

TEST(ImageList, AnEntryKeepsAllItsFields) {
  ImageList list;
  list.Insert(1, {"n", "p", "s", "d", "i", "t"});
  const ImageEntry& entry = list.Entry(1);
  EXPECT_EQ(entry.ImageName, "n");
  EXPECT_EQ(entry.SourcePath, "p");
  EXPECT_EQ(entry.SizeKey, "s");
  EXPECT_EQ(entry.DateKey, "d");
  EXPECT_EQ(entry.ImageDescription, "i");
  EXPECT_EQ(entry.ThumbnailDescription, "t");
}

TEST(ImageList, ADuplicateNameGetsTheLowestFreeNumber) {
  EXPECT_EQ(NamesOf(ListOf({"a.jpg", "a.jpg_1", "a.jpg"})), (Names{"a.jpg", "a.jpg_1", "a.jpg_2"}));
  EXPECT_EQ(NamesOf(ListOf({"a", "a", "A", "a"})), (Names{"a", "a_1", "A", "a_2"}));
}

TEST(ImageList, ANameIsFreeAgainAfterItsRowIsRemoved) {
  ImageList list = ListOf({"a", "a", "a"});
  list.Remove(2);
  list.Insert(3, Named("a"));
  EXPECT_EQ(NamesOf(list), (Names{"a", "a_2", "a_1"}));
  list.Select(1);
  list.RemoveSelected();
  list.Insert(3, Named("a"));
  EXPECT_EQ(NamesOf(list), (Names{"a_2", "a_1", "a"}));
  list.Clear();
  list.Insert(1, Named("a"));
  EXPECT_EQ(NamesOf(list), (Names{"a"}));
}

TEST(ImageList, PositionsOutsideTheListAreRefusedAndChangeNothing) {
  ImageList list = ListOf({"a", "b"});
  for (const std::size_t position : {std::size_t{0}, std::size_t{3}, static_cast<std::size_t>(-1)}) {
    SCOPED_TRACE(position);
    ExpectOutOfBounds([&] { std::ignore = list.Entry(position); });
    ExpectOutOfBounds([&] { list.Remove(position); });
    ExpectOutOfBounds([&] { list.MoveRow(position, 1); });
    ExpectOutOfBounds([&] { list.MoveRow(1, position); });
    ExpectOutOfBounds([&] { list.Rename(position, "x"); });
    ExpectOutOfBounds([&] { list.SetImageDescription(position, "x"); });
    ExpectOutOfBounds([&] { list.SetThumbnailDescription(position, "x"); });
    ExpectOutOfBounds([&] { list.Select(position); });
    ExpectOutOfBounds([&] { std::ignore = list.IsSelected(position); });
    ExpectOutOfBounds([&] { list.Insert(position == 3 ? 4 : position, Named("x")); });
    if (position != 0) ExpectOutOfBounds([&] { list.SetCurrent(position); });
  }
  EXPECT_EQ(NamesOf(list), (Names{"a", "b"}));
  EXPECT_FALSE(list.PositionOf("x")) << "a refused row must not take its name";
}

TEST(ImageList, AMovedRowKeepsAllItsFields) {
  struct Case {
    std::size_t from;
    std::size_t to;
    Names expected;
  };
  const Case cases[] = {{1, 1, {"a", "b", "c", "d"}}, {1, 4, {"b", "c", "d", "a"}}, {4, 1, {"d", "a", "b", "c"}},
                        {2, 3, {"a", "c", "b", "d"}}, {3, 2, {"a", "c", "b", "d"}}, {2, 4, {"a", "c", "d", "b"}}};
  for (const auto& [from, to, expected] : cases) {
    for (std::size_t current = 0; current <= 4; ++current) {
      SCOPED_TRACE(testing::Message() << from << " to " << to << ", current " << current);
      ImageList list = ListOf({"a", "b", "c", "d"});
      list.SetCurrent(current);
      const std::string currentName = CurrentName(list);
      list.Select(from);
      const std::string moved = list.Entry(from).ImageName;
      list.MoveRow(from, to);
      EXPECT_EQ(NamesOf(list), expected);
      EXPECT_EQ(SelectedNames(list), Names{moved});
      EXPECT_EQ(list.Entry(to).ImageDescription, "about " + moved);
      EXPECT_EQ(CurrentName(list), currentName);
    }
  }
}

TEST(ImageList, TheCurrentRowStaysCurrentWhenOthersAreAddedAndRemoved) {
  ImageList list = ListOf({"a", "b", "c"});
  EXPECT_EQ(CurrentName(list), "none");
  list.SetCurrent(2);
  list.Insert(2, Named("x"));
  EXPECT_EQ(CurrentName(list), "b");
  list.Insert(4, Named("y"));
  EXPECT_EQ(CurrentName(list), "b");
  list.Remove(1);
  EXPECT_EQ(CurrentName(list), "b");
  list.Remove(3);
  EXPECT_EQ(CurrentName(list), "b");
  list.Remove(list.Current());
  EXPECT_EQ(CurrentName(list), "none");
  list.SetCurrent(1);
  list.Clear();
  EXPECT_EQ(list.Current(), 0U);
}

TEST(ImageList, RemoveSelectedRemovesExactlyTheSelectedRows) {
  ImageList list = ListOf({"a", "b", "c", "d", "e"});
  list.SetCurrent(5);
  EXPECT_EQ(list.RemoveSelected(), 0U);
  EXPECT_EQ(list.Count(), 5U);
  list.Select(2);
  list.Select(4);
  EXPECT_EQ(list.RemoveSelected(), 2U);
  EXPECT_EQ(NamesOf(list), (Names{"a", "c", "e"}));
  EXPECT_EQ(CurrentName(list), "e");
  for (std::size_t i = 1; i <= 3; ++i) list.Select(i);
  EXPECT_EQ(list.RemoveSelected(), 1U);
  EXPECT_TRUE(list.Empty());
  EXPECT_EQ(list.Current(), 0U);
}

TEST(ImageList, EachRowIsSelectedByItself) {
  ImageList list = ListOf({"a", "b", "c"});
  list.Select(1);
  list.Select(3);
  list.Select(1, false);
  EXPECT_EQ(SelectedNames(list), Names{"c"});
  list.Insert(1, Named("x"));
  EXPECT_EQ(SelectedNames(list), Names{"c"});
  list.DeselectAll();
  EXPECT_EQ(SelectedNames(list), Names{});
}

TEST(ImageList, ADescriptionIsSetOnlyInItsRow) {
  ImageList list = ListOf({"a", "b"});
  list.SetImageDescription(2, "image");
  list.SetThumbnailDescription(2, "thumbnail");
  EXPECT_EQ(list.Entry(2).ImageDescription, "image");
  EXPECT_EQ(list.Entry(2).ThumbnailDescription, "thumbnail");
  EXPECT_EQ(list.Entry(1).ImageDescription, "about a");
  EXPECT_EQ(list.Entry(1).ThumbnailDescription, "");
}

TEST(ImageList, SortingIgnoresCaseInAllScripts) {
  ImageList list = ListOf({"b", "C", "a", "\u00C9", "\u00E8", "B\u00E4"});
  list.KeepSorted(kByName);
  EXPECT_EQ(NamesOf(list), (Names{"a", "b", "B\u00E4", "C", "\u00E8", "\u00C9"}));
}

TEST(ImageList, SortingIsStableInBothDirections) {
  const Names names = {"b", "A", "B", "a", "C"};
  ImageList list = ListOf(names);
  list.KeepSorted(kByName);
  EXPECT_EQ(NamesOf(list), (Names{"A", "a", "b", "B", "C"}));
  ImageList down = ListOf(names);
  down.KeepSorted(kByNameDown);
  EXPECT_EQ(NamesOf(down), (Names{"C", "b", "B", "A", "a"}));
}

TEST(ImageList, EachColumnSorts) {
  ImageList list;
  list.Insert(1, {"1", "c", "00999", "20240101 10:00:00", "", ""});
  list.Insert(2, {"3", "a", "01000", "20231231 23:59:59", "", ""});
  list.Insert(3, {"2", "b", "00005", "20240101 09:59:59", "", ""});
  const std::pair<SortColumn, Names> cases[] = {{SortColumn::ImageName, {"1", "2", "3"}},
                                                {SortColumn::SourcePath, {"3", "2", "1"}},
                                                {SortColumn::SizeKey, {"2", "1", "3"}},
                                                {SortColumn::DateKey, {"3", "2", "1"}}};
  for (auto [column, expected] : cases) {
    SCOPED_TRACE(static_cast<int>(column));
    list.KeepSorted({column, SortDirection::Ascending});
    EXPECT_EQ(NamesOf(list), expected);
    list.KeepSorted({column, SortDirection::Descending});
    std::ranges::reverse(expected);
    EXPECT_EQ(NamesOf(list), expected);
  }
}

TEST(ImageList, NewRowsAreSortedAfterEqualOnes) {
  ImageList list = ListOf({"b", "d"});
  list.KeepSorted(kByName);
  EXPECT_TRUE(list.IsKeptSorted());
  EXPECT_EQ(list.Insert(1, Named("e")), 3U);
  EXPECT_EQ(list.Insert(4, Named("a")), 1U);
  EXPECT_EQ(list.Insert(1, Named("B")), 3U);
  EXPECT_EQ(NamesOf(list), (Names{"a", "b", "B", "d", "e"}));
  list.KeepSorted(kByNameDown);
  EXPECT_EQ(list.Insert(1, Named("D")), 3U);
  EXPECT_EQ(NamesOf(list), (Names{"e", "d", "D", "b", "B", "a"}));
}

TEST(ImageList, ADuplicateNameIsSortedByItsNumberedName) {
  ImageList list = ListOf({"a", "a!", "b"});
  list.KeepSorted(kByName);
  EXPECT_EQ(list.Insert(1, Named("a")), 3U);
  EXPECT_EQ(NamesOf(list), (Names{"a", "a!", "a_1", "b"}));
}

TEST(ImageList, WithoutSortingRowsStayWhereTheyAreInserted) {
  ImageList list = ListOf({"c", "a", "b"});
  list.KeepSorted(kByName);
  list.StopSorting();
  EXPECT_FALSE(list.IsKeptSorted());
  EXPECT_EQ(NamesOf(list), (Names{"a", "b", "c"}));
  list.Insert(1, Named("z"));
  EXPECT_EQ(NamesOf(list), (Names{"z", "a", "b", "c"}));
}

TEST(ImageList, TheSortingOrderSurvivesClear) {
  ImageList list = ListOf({"a"});
  list.KeepSorted(kByName);
  list.Clear();
  list.Insert(1, Named("b"));
  list.Insert(2, Named("a"));
  EXPECT_EQ(NamesOf(list), (Names{"a", "b"}));
}

TEST(ImageList, SelectionAndCurrentRowFollowASort) {
  ImageList list = ListOf({"c", "a", "b"});
  list.Select(1);
  list.SetCurrent(3);
  list.KeepSorted(kByName);
  EXPECT_EQ(SelectedNames(list), Names{"c"});
  EXPECT_EQ(CurrentName(list), "b");
  list.Insert(1, Named("aa"));
  EXPECT_EQ(CurrentName(list), "b");
}

TEST(ImageList, RenamingKeepsNamesUnique) {
  ImageList list = ListOf({"a", "b", "c"});
  EXPECT_EQ(list.Rename(2, "a"), 2U);
  EXPECT_EQ(list.Rename(3, "a"), 3U);
  EXPECT_EQ(NamesOf(list), (Names{"a", "a_1", "a_2"}));
  EXPECT_EQ(list.Rename(3, "b"), 3U);
  EXPECT_EQ(NamesOf(list), (Names{"a", "a_1", "b"}));
  EXPECT_FALSE(list.PositionOf("a_2"));
}

TEST(ImageList, ARowMayKeepItsOwnName) {
  ImageList list = ListOf({"a", "a"});
  EXPECT_EQ(list.Rename(1, "a"), 1U);
  EXPECT_EQ(NamesOf(list), (Names{"a", "a_1"}));
  list.Rename(2, "a");
  EXPECT_EQ(NamesOf(list), (Names{"a", "a_1"}));
}

TEST(ImageList, RenamingARowMovesItOnlyInAnOrderByName) {
  ImageList list = ListOf({"a", "b", "c"});
  list.SetCurrent(1);
  list.Select(1);
  list.KeepSorted(kByName);
  EXPECT_EQ(list.Rename(1, "d"), 3U);
  EXPECT_EQ(NamesOf(list), (Names{"b", "c", "d"}));
  EXPECT_EQ(CurrentName(list), "d");
  EXPECT_EQ(SelectedNames(list), Names{"d"});
  list.KeepSorted({SortColumn::SourcePath, SortDirection::Ascending});
  EXPECT_EQ(NamesOf(list), (Names{"d", "b", "c"}));
  EXPECT_EQ(list.Rename(2, "z"), 2U);
  list.KeepSorted({SortColumn::SizeKey, SortDirection::Ascending});
  EXPECT_EQ(list.Rename(1, "x"), 1U) << "even among equal rows";
  EXPECT_EQ(NamesOf(list), (Names{"x", "z", "c"}));
}

TEST(ImageList, RenamingAllNumbersTheRowsInListOrder) {
  ImageList list = ListOf({"c", "x", "x_1", "a"});
  list.SetCurrent(2);
  list.RenameAll("x");
  EXPECT_EQ(NamesOf(list), (Names{"x", "x_1", "x_2", "x_3"}));
  EXPECT_EQ(list.Entry(1).SourcePath, "C:\\c");
  EXPECT_EQ(list.Current(), 2U);
  list.Insert(5, Named("x"));
  EXPECT_EQ(list.Entry(5).ImageName, "x_4");
}

TEST(ImageList, RenamingAllSortsAnOrderByNameAgain) {
  ImageList list = ListOf({"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l"});
  list.KeepSorted(kByNameDown);
  list.SetCurrent(1);
  list.RenameAll("x");
  EXPECT_EQ(NamesOf(list), (Names{"x_9", "x_8", "x_7", "x_6", "x_5", "x_4", "x_3", "x_2", "x_11", "x_10", "x_1", "x"}));
  EXPECT_EQ(CurrentName(list), "x");
}

TEST(ImageList, PositionOfComparesExactly) {
  const ImageList list = ListOf({"a", "b"});
  EXPECT_EQ(list.PositionOf("b"), 2U);
  EXPECT_FALSE(list.PositionOf("B"));
  EXPECT_FALSE(list.PositionOf(""));
}

TEST(ImageList, FindWordFindsTheFirstNameThatBeginsWithItInAnyCase) {
  const ImageList list = ListOf({"photo_10", "Photo_1", "PHOTO_1.jpg", "Stra\u00DFe.jpg", "\u00C9T\u00C9", "Aquarium",
                                 "aqua.jpg", "Aqua", "sea\xFF", "5\u20AC"});
  struct Case {
    const char* word;
    std::size_t position;
  };
  for (const auto& [word, position] :
       {Case{"photo", 1}, Case{"PHOTO_10", 1}, Case{"photo_1", 2}, Case{"photo_1.jpg", 3}, Case{"STRASSE", 4},
        Case{"\u00E9t\u00E9", 5}, Case{"Aqua", 7}, Case{"sea", 9}, Case{"5", 10}}) {
    EXPECT_EQ(list.FindWord(word), position) << word;
  }
}

TEST(ImageList, FindWordTakesABlankAndAnUnderscoreForTheSameIfNothingElseIsFound) {
  const ImageList list = ListOf({"IMG 10.jpg", "IMG 1.jpg", "img_1.jpg", "sun  set"});
  struct Case {
    const char* word;
    std::size_t position;
  };
  for (const auto& [word, position] : {Case{"img", 1}, Case{"IMG_10", 1}, Case{"img 1", 2}, Case{"IMG_1.jpg", 3},
                                       Case{"sun__set", 4}, Case{"sun _set", 4}}) {
    EXPECT_EQ(list.FindWord(word), position) << word;
  }
  EXPECT_FALSE(list.FindWord("sun_set"));
}

TEST(ImageList, FindWordSkipsNamesThatGoOnWithALetterOrDigitOfAnyScript) {
  const ImageList list = ListOf({"photo1", "seaside", "sea\u00E9", "sea\u0436", "sea\u0663", "a sea", "se"});
  for (const char* missing : {"photo", "sea", "s", "hoto1", "photo1.", "photo1 ", "", "\xFF"}) {
    EXPECT_FALSE(list.FindWord(missing)) << missing;
  }
}

TEST(ImageList, AHundredThousandRowsOfOneNameAreNumberedAndSorted) {
  ImageList list;
  for (int i = 0; i < 100'000; ++i) list.Insert(list.Count() + 1, Named("same"));
  EXPECT_EQ(list.Entry(100'000).ImageName, "same_99999");
  list.KeepSorted(kByNameDown);
  EXPECT_EQ(list.Entry(1).ImageName, "same_99999");
  EXPECT_EQ(list.Entry(2).ImageName, "same_99998");
  EXPECT_EQ(list.Entry(100'000).ImageName, "same");
}

}  // namespace
}  // namespace vantorium::core
