#pragma once

#include "core/ImageListDisplay.h"
#include "core/Project.h"
#include "core/Shuffle.h"
#include "env/MessageBoxPort.h"
#include "env/mFileFunctions.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantorium {

/// The name base that means "no image gets another name": what the rename dialog gives when it is cancelled.
inline constexpr char kNoNameBase[] = "?&null&?";

enum class RenameScope { CurrentImage, AllImages };

/// What a user does with the image list of the project. Positions count from 1. Whatever changes the project sets
/// IsModified, except AddImage, AddFile, MoveEntry and StopSorting, which are steps of other operations.
class ImageListOperations {
 public:
  ImageListOperations(Project& project, const mFileFunctions& files, MessageBoxPort& boxes, ImageListDisplay& display)
      : project_(project), files_(files), boxes_(boxes), display_(display) {}

  /// Adds the image of a file, `sourcePath` with or without "file://" in front, at `index` (1 to the count + 1); a list
  /// that is kept sorted puts it into its place. A name that is taken is numbered. A file that cannot be read shows a
  /// box and gives false, with nothing added. `flag` has no effect. Throws RuntimeFailure IndexOutOfBounds.
  [[nodiscard]] bool AddImage(std::size_t index, const std::string& sourcePath, const std::string& imageName, bool flag,
                              const std::string& imageDescription, const std::string& thumbnailDescription);

  /// Adds a file at the end of the list under its file name, as AddImage does. Where no row is current, the new one
  /// becomes so and is selected.
  [[nodiscard]] bool AddFile(const std::string& path);
  /// Adds each file as AddFile does. The first one that cannot be read ends it; what was added before stays. True when
  /// all were added.
  bool AddFiles(const std::vector<std::string>& paths);

  /// Selects the row now at the place of the first one, or the one before, and makes it current.
  void RemoveSelected();
  /// Asks first.
  void RemoveAll();
  /// The user's answer "remove" to an image that does not decode: takes the current row away and selects the row now at
  /// its place, or the one before. Refreshes the preview, which shows the next image or asks about it in its turn.
  void RemoveCorrupted();

  /// Takes a row out and adds it anew at `toIndex`, so that its size and date are read from the file again. It is not
  /// selected afterwards. A file that cannot be read shows a box and gives false; the row then stays where it was.
  /// Throws RuntimeFailure IndexOutOfBounds outside 1 to the count.
  bool MoveEntry(std::size_t fromIndex, std::size_t toIndex);
  /// These two set the sorting order to 0 first. A selected row that is already at the end ends the walk over the
  /// selected rows.
  void MoveSelectedUp();
  void MoveSelectedDown();
  /// The row named `draggedName` was dropped onto the row at `target` (see DropTarget); refused while the list is kept
  /// sorted. A name that is not in the list is ignored.
  void Drop(const std::string& draggedName, std::size_t target);

  /// `index` as in comboImagesSortingOrder. Asks before an order of the user's own is lost; 0 keeps the order as it is.
  /// Throws RuntimeFailure SubscriptOutOfRange outside 0 to 8.
  void SetSortingOrder(Choice index);
  /// Sets the sorting order to 0 and nothing else: what a new project and a reading of a file begin with.
  void StopSorting();

  /// Asks first, and only with more than one row. The first row is current and selected afterwards.
  void Shuffle(const ShuffleTools& tools);

  /// Selects the image that ImageList::FindWord gives, and no other, and makes it current. Nothing happens with an
  /// empty text or list.
  void FindByName(const std::string& text);

  /// Gives the current image, or all of them, the name `nameBase`, numbered from the second one on in list order. An
  /// empty base and kNoNameBase change nothing.
  void Rename(const std::string& nameBase, RenameScope scope);

  /// Where no row is current, selects the first one and makes it current: for a list that was filled by other means.
  void SelectFirstIfNoneIsCurrent();

 private:
  enum class Step { Up, Down };

  [[nodiscard]] std::optional<std::size_t> Add(std::size_t index, ImageEntry entry);
  [[nodiscard]] bool Keys(ImageEntry& entry);
  void MoveSelected(Step step);
  void SelectAsCurrent(std::size_t position);
  void SelectAtOrBefore(std::size_t position);
  void RefreshPreviewAndCounts();

  Project& project_;
  const mFileFunctions& files_;
  MessageBoxPort& boxes_;
  ImageListDisplay& display_;
};

}  // namespace vantorium
