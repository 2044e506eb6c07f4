#include "core/ImageList.h"

#include "core/CaseFolding.h"
#include "env/RuntimeFailure.h"

#include <algorithm>

namespace vantorium::core {
namespace {

const std::string& TextOf(const ImageEntry& entry, SortColumn column) {
  switch (column) {
    case SortColumn::ImageName:
      return entry.ImageName;
    case SortColumn::SourcePath:
      return entry.SourcePath;
    case SortColumn::SizeKey:
      return entry.SizeKey;
    case SortColumn::DateKey:
      break;
  }
  return entry.DateKey;
}

/// Both texts are folded by the same function.
bool BeginsWithWord(std::string_view name, std::string_view word) {
  return name.starts_with(word) && !BeginsWithLetterOrDigit(name.substr(word.size()));
}

/// A typed name has underscores in place of blanks, the name of an image may have blanks.
std::string FoldWithBlanks(std::string_view text) {
  std::string folded = FoldCase(text);
  std::ranges::replace(folded, ' ', '_');
  return folded;
}

void CheckPosition(std::size_t position, std::size_t last) {
  if (position < 1 || position > last) throw env::RuntimeFailure(env::FailureKind::IndexOutOfBounds);
}

std::ptrdiff_t OffsetOf(std::size_t position) {
  return static_cast<std::ptrdiff_t>(position) - 1;
}

}  // namespace

ImageList::Row& ImageList::At(std::size_t position) const {
  CheckPosition(position, Count());
  return *rows_[position - 1];
}

std::size_t ImageList::Insert(std::size_t position, ImageEntry entry) {
  CheckPosition(position, Count() + 1);
  entry.ImageName = names_.Take(entry.ImageName);
  return Place(position, std::make_unique<Row>(Row{.entry = std::move(entry), .sortKey = {}}));
}

void ImageList::Remove(std::size_t position) {
  const RowOwner row = TakeOut(position);
  names_.Release(row->entry.ImageName);
}

std::size_t ImageList::RemoveSelected() {
  const Row* current = current_ == 0 ? nullptr : &At(current_);
  std::size_t first = 0;
  std::size_t kept = 0;
  current_ = 0;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (rows_[i]->selected) {
      if (first == 0) first = i + 1;
      names_.Release(rows_[i]->entry.ImageName);
      continue;
    }
    if (kept != i) rows_[kept] = std::move(rows_[i]);
    ++kept;
    if (rows_[kept - 1].get() == current) current_ = kept;
  }
  rows_.resize(kept);
  return first;
}

void ImageList::Clear() {
  rows_.clear();
  names_.Clear();
  current_ = 0;
}

void ImageList::MoveRow(std::size_t from, std::size_t to) {
  CheckPosition(from, Count());
  CheckPosition(to, Count());
  RowOwner row = std::move(rows_[from - 1]);
  const auto begin = rows_.begin();
  if (from < to) {
    std::move(begin + OffsetOf(from + 1), begin + OffsetOf(to + 1), begin + OffsetOf(from));
  } else {
    std::move_backward(begin + OffsetOf(to), begin + OffsetOf(from), begin + OffsetOf(from + 1));
  }
  rows_[to - 1] = std::move(row);

  if (current_ == from) {
    current_ = to;
  } else if (from < current_ && current_ <= to) {
    --current_;
  } else if (to <= current_ && current_ < from) {
    ++current_;
  }
}

std::size_t ImageList::Rename(std::size_t position, const std::string& name) {
  Row& row = At(position);
  if (row.entry.ImageName == name) return position;
  names_.Release(row.entry.ImageName);
  row.entry.ImageName = names_.Take(name);
  if (!order_ || order_->column != SortColumn::ImageName) return position;

  const bool isCurrent = current_ == position;
  const std::size_t place = Place(position, TakeOut(position));
  if (isCurrent) current_ = place;
  return place;
}

void ImageList::RenameAll(const std::string& base) {
  names_.Clear();
  for (const RowOwner& row : rows_) row->entry.ImageName = names_.Take(base);
  if (order_ && order_->column == SortColumn::ImageName) Sort();
}

void ImageList::SetImageDescription(std::size_t position, std::string text) {
  At(position).entry.ImageDescription = std::move(text);
}

void ImageList::SetThumbnailDescription(std::size_t position, std::string text) {
  At(position).entry.ThumbnailDescription = std::move(text);
}

void ImageList::KeepSorted(ListOrder order) {
  order_ = order;
  Sort();
}

void ImageList::DeselectAll() {
  for (const RowOwner& row : rows_) row->selected = false;
}

void ImageList::SetCurrent(std::size_t position) {
  if (position != 0) CheckPosition(position, Count());
  current_ = position;
}

std::optional<std::size_t> ImageList::PositionOf(std::string_view name) const {
  if (!names_.IsTaken(name)) return std::nullopt;
  const auto found = std::ranges::find_if(rows_, [&](const RowOwner& row) { return row->entry.ImageName == name; });
  return static_cast<std::size_t>(found - rows_.begin()) + 1;
}

std::optional<std::size_t> ImageList::FindWord(std::string_view word) const {
  for (const auto fold : {FoldCase, FoldWithBlanks}) {
    const std::string wanted = fold(word);
    const auto found = std::ranges::find_if(
        rows_, [&](const RowOwner& row) { return BeginsWithWord(fold(row->entry.ImageName), wanted); });
    if (found != rows_.end()) return static_cast<std::size_t>(found - rows_.begin()) + 1;
  }
  return std::nullopt;
}

ImageList::RowOwner ImageList::TakeOut(std::size_t position) {
  CheckPosition(position, Count());
  RowOwner row = std::move(rows_[position - 1]);
  rows_.erase(rows_.begin() + OffsetOf(position));
  if (current_ == position) {
    current_ = 0;
  } else if (current_ > position) {
    --current_;
  }
  return row;
}

/// Inserts a row at `position`, or at its sorted position if the list is kept sorted, and returns its position.
std::size_t ImageList::Place(std::size_t position, RowOwner row) {
  auto place = rows_.begin() + OffsetOf(position);
  if (order_) {
    row->sortKey = FoldCase(TextOf(row->entry, order_->column));
    place = std::ranges::upper_bound(
        rows_, row, [this](const RowOwner& left, const RowOwner& right) { return ComesBefore(left, right); });
  }
  position = static_cast<std::size_t>(place - rows_.begin()) + 1;
  rows_.insert(place, std::move(row));
  if (current_ >= position) ++current_;
  return position;
}

bool ImageList::ComesBefore(const RowOwner& left, const RowOwner& right) const {
  return order_->direction == SortDirection::Ascending ? left->sortKey < right->sortKey
                                                       : right->sortKey < left->sortKey;
}

void ImageList::Sort() {
  const Row* current = current_ == 0 ? nullptr : &At(current_);
  for (const RowOwner& row : rows_) row->sortKey = FoldCase(TextOf(row->entry, order_->column));
  std::ranges::stable_sort(rows_,
                           [this](const RowOwner& left, const RowOwner& right) { return ComesBefore(left, right); });
  if (current == nullptr) return;
  const auto found = std::ranges::find(rows_, current, &RowOwner::get);
  current_ = static_cast<std::size_t>(found - rows_.begin()) + 1;
}

}  // namespace vantorium::core
