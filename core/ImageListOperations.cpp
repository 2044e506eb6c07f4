#include "core/ImageListOperations.h"

#include "env/PathText.h"
#include "env/RuntimeFailure.h"
#include "env/Text.h"

#include <algorithm>
#include <array>

namespace vantorium::core {
namespace {

/// In the order of SortingOrder, after Unsorted.
constexpr std::array<ListOrder, 8> kOrders = {{{SortColumn::ImageName, SortDirection::Ascending},
                                               {SortColumn::ImageName, SortDirection::Descending},
                                               {SortColumn::SourcePath, SortDirection::Ascending},
                                               {SortColumn::SourcePath, SortDirection::Descending},
                                               {SortColumn::SizeKey, SortDirection::Ascending},
                                               {SortColumn::SizeKey, SortDirection::Descending},
                                               {SortColumn::DateKey, SortDirection::Ascending},
                                               {SortColumn::DateKey, SortDirection::Descending}}};

}  // namespace

bool ImageListOperations::AddImage(std::size_t index, const std::string& sourcePath, const std::string& imageName,
                                   const std::string& imageDescription, const std::string& thumbnailDescription) {
  const auto position = Add(index, {.ImageName = imageName,
                                    .SourcePath = std::string(env::WithoutFilePrefix(sourcePath)),
                                    .SizeKey = {},
                                    .DateKey = {},
                                    .ImageDescription = imageDescription,
                                    .ThumbnailDescription = thumbnailDescription});
  return position.has_value();
}

/// Returns the position of the new row, or nullopt if its file cannot be read.
std::optional<std::size_t> ImageListOperations::Add(std::size_t index, ImageEntry entry) {
  if (!ReadSortKeys(entry)) return std::nullopt;
  return project_.images.Insert(index, std::move(entry));
}

/// Reads the sort keys of an entry from its file. On failure shows a message box and returns false.
bool ImageListOperations::ReadSortKeys(ImageEntry& entry) {
  try {
    entry.SizeKey = files_.GetFileSizeText(entry.SourcePath, true);
    entry.DateKey = files_.GetFileDateTimeText(entry.SourcePath, true);
    return true;
  } catch (const env::RuntimeFailure& failure) {
    boxes_.Critical("File Error", "An Error occurred trying to read the image file \"" +
                                      files_.Paths().Surface(entry.SourcePath) + "\":\r\r" + failure.Description() +
                                      "\r\rLoading Process cancelled.");
    display_.ShowBusyPointer(false);
    return false;
  }
}

bool ImageListOperations::AddFile(const std::string& path) {
  ImageEntry entry;
  entry.ImageName = env::GetFileName(path);
  entry.SourcePath = env::WithoutFilePrefix(path);
  const auto position = Add(project_.images.Count() + 1, std::move(entry));
  if (position && project_.images.Current() == 0) SelectAsCurrent(*position);
  return position.has_value();
}

bool ImageListOperations::AddFiles(const std::vector<std::string>& paths) {
  const std::size_t before = project_.images.Count();
  const bool all = std::ranges::all_of(paths, [this](const std::string& path) { return AddFile(path); });
  if (project_.images.Count() != before) project_.IsModified = true;
  RefreshPreviewAndCounts();
  return all;
}

void ImageListOperations::RemoveSelected() {
  display_.ShowBusyPointer(true);
  const std::size_t first = project_.images.RemoveSelected();
  if (first != 0) {
    SelectAtOrBefore(first);
    project_.IsModified = true;
  }
  display_.ShowBusyPointer(false);
  RefreshPreviewAndCounts();
}

void ImageListOperations::RemoveAll() {
  if (project_.images.Empty()) return;
  if (!boxes_.AskYesNo("Remove all Images", "Are you sure you wish to remove all image entries from the gallery?")) {
    return;
  }
  project_.images.Clear();
  project_.IsModified = true;
  RefreshPreviewAndCounts();
}

void ImageListOperations::RemoveCorrupted() {
  const std::size_t position = project_.images.Current();
  if (position == 0) return;
  project_.images.Remove(position);
  project_.IsModified = true;
  SelectAtOrBefore(position);
  RefreshPreviewAndCounts();
}

// Reads the keys before touching the row: otherwise a row whose file is gone would be lost.
bool ImageListOperations::MoveEntry(std::size_t fromIndex, std::size_t toIndex) {
  ImageList& images = project_.images;
  if (toIndex < 1 || toIndex > images.Count()) throw env::RuntimeFailure(env::FailureKind::IndexOutOfBounds);
  ImageEntry entry = images.Entry(fromIndex);
  if (!ReadSortKeys(entry)) return false;
  const bool isCurrent = images.Current() == fromIndex;
  images.Remove(fromIndex);
  const std::size_t position = images.Insert(toIndex, std::move(entry));
  if (isCurrent) images.SetCurrent(position);
  return true;
}

void ImageListOperations::MoveSelectedUp() {
  MoveSelected(Step::Up);
}
void ImageListOperations::MoveSelectedDown() {
  MoveSelected(Step::Down);
}

void ImageListOperations::MoveSelected(Step step) {
  ImageList& images = project_.images;
  // As if chosen by the user: marks the project as modified even if no row can move.
  SetSortingOrder(NumberOf(SortingOrder::Unsorted));
  const std::size_t count = images.Count();
  for (std::size_t walked = 0; walked < count; ++walked) {
    const std::size_t position = step == Step::Up ? walked + 1 : count - walked;
    if (!images.IsSelected(position)) continue;
    if (walked == 0) return;
    const std::size_t target = step == Step::Up ? position - 1 : position + 1;
    images.MoveRow(position, target);
    display_.ScrollIntoView(target);
  }
}

void ImageListOperations::Drop(const std::string& draggedName, std::size_t target) {
  if (SortingOrderOf(project_.settings) != SortingOrder::Unsorted) {
    boxes_.Critical("Item cannot be moved",
                    "You cannot change the order of images while the list is being kept sorted.\r"
                    "Please select 'unsorted' in the 'Sort Image List' box!");
    return;
  }
  const auto source = project_.images.PositionOf(draggedName);
  if (!source) return;
  project_.IsModified = true;
  if (MoveEntry(*source, target)) SelectAsCurrent(target);
  display_.RefreshPreview();
}

void ImageListOperations::SetSortingOrder(Choice index) {
  ImageList& images = project_.images;
  if (index < 0 || index > static_cast<Choice>(kOrders.size()))
    throw env::RuntimeFailure(env::FailureKind::SubscriptOutOfRange);
  project_.IsModified = true;
  constexpr Choice kUnsorted = NumberOf(SortingOrder::Unsorted);
  const bool losesAnOrder = !images.Empty() && !images.IsKeptSorted() && index != kUnsorted;
  if (losesAnOrder &&
      !boxes_.AskYesNo("Change Sorting Order",
                       "Are you sure you wish to change the Sorting Order for the Images in this Gallery?")) {
    index = kUnsorted;
  }
  if (index == kUnsorted) return StopSorting();
  project_.settings.comboImagesSortingOrder = index;
  images.KeepSorted(kOrders.at(static_cast<std::size_t>(index) - 1));
}

void ImageListOperations::StopSorting() {
  project_.settings.comboImagesSortingOrder = NumberOf(SortingOrder::Unsorted);
  project_.images.StopSorting();
}

void ImageListOperations::Shuffle(const ShuffleTools& tools) {
  ImageList& images = project_.images;
  if (images.Count() < 2) return;
  if (!boxes_.AskYesNo("Shuffle Images", "Are you sure you wish to shuffle the Images?")) return;
  project_.IsModified = true;
  tools.progress.Open();
  display_.ShowBusyPointer(true);
  StopSorting();
  tools.random.SeedFromClock();
  if (ShuffleRows(images, tools)) images.DeselectAll();
  SelectAtOrBefore(1);
  display_.RefreshPreview();
  display_.ShowBusyPointer(false);
  tools.progress.Close();
}

void ImageListOperations::FindByName(const std::string& text) {
  if (project_.images.Empty() || text.empty()) return;
  const auto found = project_.images.FindWord(text);
  if (!found) {
    boxes_.Critical("Image not found", "This Gallery does not contain an Image named \"" + text + "\".");
    return;
  }
  display_.ScrollIntoView(*found);
  project_.images.DeselectAll();
  SelectAsCurrent(*found);
  display_.RefreshPreview();
}

void ImageListOperations::Rename(const std::string& nameBase, RenameScope scope) {
  ImageList& images = project_.images;
  if (nameBase.empty() || nameBase == kNoNameBase || images.Empty()) return;
  if (scope == RenameScope::AllImages) {
    images.RenameAll(nameBase);
  } else if (images.Current() != 0) {
    images.Rename(images.Current(), nameBase);
  } else {
    return;
  }
  project_.IsModified = true;
}

void ImageListOperations::SelectFirstIfNoneIsCurrent() {
  if (project_.images.Current() == 0) SelectAtOrBefore(1);
}

void ImageListOperations::SelectAsCurrent(std::size_t position) {
  project_.images.Select(position);
  project_.images.SetCurrent(position);
}

/// After a removal: selects the row that moved up to `position`, or the last row if `position` is past the end.
void ImageListOperations::SelectAtOrBefore(std::size_t position) {
  if (!project_.images.Empty()) SelectAsCurrent(std::min(position, project_.images.Count()));
}

void ImageListOperations::RefreshPreviewAndCounts() {
  display_.RefreshPreview();
  display_.RefreshCounts();
}

}  // namespace vantorium::core
