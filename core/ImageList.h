#pragma once

#include "core/ImageEntry.h"
#include "core/UniqueNames.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium {

/// By what a list is kept sorted.
enum class SortColumn { ImageName, SourcePath, SizeKey, DateKey };
enum class SortDirection { Ascending, Descending };

struct ListOrder {
  SortColumn column;
  SortDirection direction;
};

/// The ordered list of a project's images: the order of its rows is the order of the gallery. Positions count from 1;
/// every operation on a position throws RuntimeFailure IndexOutOfBounds outside 1 to Count and then changes nothing.
/// Names are unique (compared exactly). Some rows may be selected, and one may be the current row; both stay with their
/// row wherever it goes.
class ImageList {
 public:
  [[nodiscard]] std::size_t Count() const { return rows_.size(); }
  [[nodiscard]] bool Empty() const { return rows_.empty(); }
  [[nodiscard]] const ImageEntry& Entry(std::size_t position) const { return At(position).entry; }

  /// Puts `entry` at `position` (1 to Count + 1), or where the kept order wants it. A name that is taken gets "_1", or
  /// the lowest number that makes it free. Returns the position at which the row now stands; it is not selected.
  std::size_t Insert(std::size_t position, ImageEntry entry);
  /// Takes a row away. The list has no current row afterwards if it was that one.
  void Remove(std::size_t position);
  /// Takes all selected rows away. Returns the position of the first of them, 0 when none was selected.
  std::size_t RemoveSelected();
  /// Takes all rows away; a kept order stays in force.
  void Clear();
  /// Takes the row at `from` out and puts it back at `to`, with everything it has; a kept order is not looked at.
  void MoveRow(std::size_t from, std::size_t to);
  /// Gives a row another name, made unique as in Insert (its own present name does not count as taken); a kept order
  /// puts the row into its place. Returns the position at which the row now stands.
  std::size_t Rename(std::size_t position, const std::string& name);
  /// Names the rows `base`, `base`_1, `base`_2 and so on in the order of the list, whatever they are called now. A kept
  /// order by name sorts them anew.
  void RenameAll(const std::string& base);
  void SetImageDescription(std::size_t position, std::string text);
  void SetThumbnailDescription(std::size_t position, std::string text);

  /// Sorts now and puts every row that comes later in its place, behind those that are equal. Text sort,
  /// case-insensitive (full Unicode folding), stable in both directions.
  void KeepSorted(ListOrder order);
  /// The list keeps the order it has; rows go where they are put.
  void StopSorting() { order_.reset(); }
  [[nodiscard]] bool IsKeptSorted() const { return order_.has_value(); }

  [[nodiscard]] bool IsSelected(std::size_t position) const { return At(position).selected; }
  void Select(std::size_t position, bool selected = true) { At(position).selected = selected; }
  void DeselectAll();
  /// The current row, 0 when there is none.
  [[nodiscard]] std::size_t Current() const { return current_; }
  /// 0 leaves the list without a current row.
  void SetCurrent(std::size_t position);

  /// Position of the row with exactly that name.
  [[nodiscard]] std::optional<std::size_t> PositionOf(std::string_view name) const;
  /// Position of the first row whose name begins with `word`, upper and lower case being the same, and has its end or a
  /// character that is neither letter nor digit behind it.
  [[nodiscard]] std::optional<std::size_t> FindWord(std::string_view word) const;

 private:
  struct Row {
    ImageEntry entry;
    std::string sortKey;  ///< the text of the order's column with its case folded; stale without an order
    bool selected = false;
  };
  using RowOwner = std::unique_ptr<Row>;  // Rows stay where they are in memory: a move through the list moves a pointer

  [[nodiscard]] Row& At(std::size_t position) const;
  [[nodiscard]] RowOwner TakeOut(std::size_t position);
  std::size_t Place(std::size_t position, RowOwner row);
  [[nodiscard]] bool ComesBefore(const RowOwner& left, const RowOwner& right) const;
  void Sort();

  std::vector<RowOwner> rows_;  ///< the row at position p is rows_[p - 1]
  UniqueNames names_;
  std::optional<ListOrder> order_;
  std::size_t current_ = 0;
};

}  // namespace vantorium
