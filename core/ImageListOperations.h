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

namespace vantorium::core {

/// The name base that means "rename nothing", returned by the rename dialog when it is cancelled.
inline constexpr char kNoNameBase[] = "?&null&?";

enum class RenameScope { CurrentImage, AllImages };

/// The user's operations on the image list of the project. Positions count from 1. Operations that change the project
/// set IsModified, except AddImage, AddFile, MoveEntry and StopSorting, which are steps of other operations.
class ImageListOperations {
 public:
  ImageListOperations(Project& project, const env::mFileFunctions& files, env::MessageBoxPort& boxes,
                      ImageListDisplay& display)
      : project_(project), files_(files), boxes_(boxes), display_(display) {}

  /// Adds the image of a file, `sourcePath` with or without a leading "file://", at `index` (1 to the count + 1), or at
  /// its sorted position if the list is kept sorted. A name that is taken gets a number. If the file cannot be read,
  /// shows a message box, adds nothing and returns false. Throws RuntimeFailure IndexOutOfBounds.
  [[nodiscard]] bool AddImage(std::size_t index, const std::string& sourcePath, const std::string& imageName,
                              const std::string& imageDescription, const std::string& thumbnailDescription);

  /// Adds a file under its file name at the end of the list, like AddImage. If no row is current, the new one becomes
  /// current and is selected.
  [[nodiscard]] bool AddFile(const std::string& path);
  /// Adds each file like AddFile. Stops at the first one that cannot be read and keeps those added before. Returns true
  /// if all were added.
  bool AddFiles(const std::vector<std::string>& paths);

  /// Removes the selected rows, then selects the row now in the place of the first one, or the last row, and makes it
  /// current.
  void RemoveSelected();
  /// Asks for confirmation first.
  void RemoveAll();
  /// Carries out the user's answer "remove" for an image that cannot be decoded: removes the current row and selects
  /// the row now in its place, or the one before. Refreshes the preview, which shows the next image or asks about it in
  /// turn.
  void RemoveCorrupted();

  /// Removes a row and adds it again at `toIndex`, so that its size and date are read from the file again. It is not
  /// selected afterwards. If the file cannot be read, shows a message box and returns false; the row then stays where
  /// it was. Throws RuntimeFailure IndexOutOfBounds outside 1 to the count.
  bool MoveEntry(std::size_t fromIndex, std::size_t toIndex);
  /// Both first set the sorting order to Unsorted. If a selected row is already at the end, no row moves.
  void MoveSelectedUp();
  void MoveSelectedDown();
  /// Handles a drop of the row named `draggedName` onto the row at `target` (see DropTarget). Refused while the list is
  /// kept sorted. Ignores a name that is not in the list.
  void Drop(const std::string& draggedName, std::size_t target);

  /// `index` is the number of a SortingOrder. Asks before the user's own order is lost; Unsorted keeps the present
  /// order. Throws RuntimeFailure SubscriptOutOfRange if no SortingOrder has that number.
  void SetSortingOrder(Choice index);
  /// Sets the sorting order to Unsorted and nothing else, as new projects and reading a file do first.
  void StopSorting();

  /// Asks for confirmation first; does nothing with fewer than two rows. Afterwards the first row is current and
  /// selected.
  void Shuffle(const ShuffleTools& tools);

  /// Selects only the image that ImageList::FindWord finds, and makes it current. Does nothing for an empty text or
  /// list.
  void FindByName(const std::string& text);

  /// Renames the current image, or all images, to `nameBase`, numbered from the second one on in list order. An empty
  /// base and kNoNameBase change nothing.
  void Rename(const std::string& nameBase, RenameScope scope);

  /// If no row is current, selects the first one and makes it current: for lists that were filled by other means.
  void SelectFirstIfNoneIsCurrent();

 private:
  enum class Step { Up, Down };

  [[nodiscard]] std::optional<std::size_t> Add(std::size_t index, ImageEntry entry);
  [[nodiscard]] bool ReadSortKeys(ImageEntry& entry);
  void MoveSelected(Step step);
  void SelectAsCurrent(std::size_t position);
  void SelectAtOrBefore(std::size_t position);
  void RefreshPreviewAndCounts();

  Project& project_;
  const env::mFileFunctions& files_;
  env::MessageBoxPort& boxes_;
  ImageListDisplay& display_;
};

}  // namespace vantorium::core
