#pragma once

#include "core/ImageEntry.h"
#include "core/UniqueNames.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::core {

/// The column by which a list is sorted.
enum class SortColumn { ImageName, SourcePath, SizeKey, DateKey };
enum class SortDirection { Ascending, Descending };

struct ListOrder {
  SortColumn column;
  SortDirection direction;
};

/// The ordered list of a project's images; the order of its rows is the order of the gallery. Positions count from 1;
/// every operation on a position outside 1 to Count throws RuntimeFailure IndexOutOfBounds and changes nothing. Names
/// are unique (compared exactly). Any rows may be selected, and one may be the current row; rows keep both states when
/// they move.
class ImageList {
 public:
  [[nodiscard]] std::size_t Count() const { return rows_.size(); }
  [[nodiscard]] bool Empty() const { return rows_.empty(); }
  [[nodiscard]] const ImageEntry& Entry(std::size_t position) const { return At(position).entry; }

  /// Inserts `entry` at `position` (1 to Count + 1), or at its sorted position if the list is kept sorted. A name that
  /// is taken gets "_1", or the lowest number that makes it unique. Returns the position of the new row, which is not
  /// selected.
  std::size_t Insert(std::size_t position, ImageEntry entry);
  /// Removes a row. If it was the current row, the list has no current row afterwards.
  void Remove(std::size_t position);
  /// Removes all selected rows. Returns the position of the first of them, 0 if none was selected.
  std::size_t RemoveSelected();
  /// Removes all rows; a sort order stays in force.
  void Clear();
  /// Moves the row at `from` to `to` with all its state; ignores a sort order.
  void MoveRow(std::size_t from, std::size_t to);
  /// Renames a row, making the name unique as in Insert (its own present name does not count as taken). If the list is
  /// kept sorted by name, the row moves to its place. Returns the row's new position.
  std::size_t Rename(std::size_t position, const std::string& name);
  /// Names the rows `base`, `base`_1, `base`_2 and so on in list order, whatever their present names. A list kept
  /// sorted by name is then sorted again.
  void RenameAll(const std::string& base);
  void SetImageDescription(std::size_t position, std::string text);
  void SetThumbnailDescription(std::size_t position, std::string text);

  /// Sorts now, and puts every row inserted later in its place, after the rows equal to it. Compares texts
  /// case-insensitively (full Unicode folding); stable in both directions.
  void KeepSorted(ListOrder order);
  /// Keeps the present order; from now on rows stay where they are put.
  void StopSorting() { order_.reset(); }
  [[nodiscard]] bool IsKeptSorted() const { return order_.has_value(); }

  [[nodiscard]] bool IsSelected(std::size_t position) const { return At(position).selected; }
  void Select(std::size_t position, bool selected = true) { At(position).selected = selected; }
  void DeselectAll();
  /// Returns the position of the current row, 0 if there is none.
  [[nodiscard]] std::size_t Current() const { return current_; }
  /// With 0 the list has no current row.
  void SetCurrent(std::size_t position);

  /// Returns the position of the row with exactly this name.
  [[nodiscard]] std::optional<std::size_t> PositionOf(std::string_view name) const;
  /// Returns the position of the first row whose name begins with `word`, ignoring case, followed by the end of the
  /// name or a character that is neither letter nor digit. If there is none, blanks count as underscores.
  [[nodiscard]] std::optional<std::size_t> FindWord(std::string_view word) const;

 private:
  struct Row {
    ImageEntry entry;
    std::string sortKey;  ///< the case-folded text of the sort column; stale if the list is not kept sorted
    bool selected = false;
  };
  using RowOwner = std::unique_ptr<Row>;  // Rows keep their address: moving a row moves a pointer

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

}  // namespace vantorium::core
