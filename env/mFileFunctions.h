#pragma once

#include "env/CivilTime.h"
#include "env/PathMap.h"
#include "env/RegionalFormats.h"

#include <string>
#include <string_view>

namespace vantorium {

/// `size` in bytes as display text: divided by 1024 while above 1023, cut, with " Bytes", "KB", "MB", "GB", "TB" or
/// "?".
[[nodiscard]] std::string FileSizeText(std::uint64_t size);

/// `size` in bytes as sort text: decimal, padded on the left with "0" to 20 characters.
[[nodiscard]] std::string FileSizeKey(std::uint64_t size);

/// The program's operations on the local disk. Paths are path text; the map turns them into the system's own. What the
/// map does not hold does not exist.
class mFileFunctions {
 public:
  mFileFunctions(const PathMap& paths, const RegionalFormats& formats) : paths_(paths), formats_(formats) {}

  /// Size of a file as FileSizeText, or as FileSizeKey when `sortable`. Throws RuntimeFailure FileNotFound, also for a
  /// folder.
  [[nodiscard]] std::string GetFileSizeText(std::string_view path, bool sortable = false) const;

  /// Last write time of a file or folder. Throws RuntimeFailure FileTimeNotFound.
  [[nodiscard]] FileTime GetFileWriteTime(std::string_view path) const;

  /// The UTC date or time of `time` in the regional format; empty for a kind outside 0 to 3 and a time before 1601.
  [[nodiscard]] std::string FormatFileTime(FileTime time, int kind) const;

  /// The last write time of a file, in UTC: as "yyyymmdd hh:mm:ss" when `sortable`, else as FormatFileTime.
  /// Throws RuntimeFailure FileTimeNotFound.
  [[nodiscard]] std::string GetFileDateTimeText(std::string_view path, bool sortable, int kind = 0) const;

  /// Whether a file or folder of that name is there.
  [[nodiscard]] bool PathExists(std::string_view path) const;

  /// Whether a file or folder matches; "*" and "?" may stand in the last part of the path. The entries "." and ".." of
  /// a folder count, so "*" and "*.*" match in every folder. A path that ends in a separator matches nothing.
  [[nodiscard]] bool FileExists(std::string_view pattern) const;

  /// Copies bytes, permissions and write time. The destination appears only when it is whole; with `overwrite` false an
  /// existing one makes the copy fail. Copying a file onto itself succeeds and changes nothing.
  [[nodiscard]] bool CopyLocalFile(std::string_view source, std::string_view destination, bool overwrite) const;

  /// Gives `target` the access and write times of `source`; true when they were set.
  bool CopyFileTimes(std::string_view source, std::string_view target) const;

  /// Makes a chain of folders. That one could not be made is not a failure: the next write finds out. False only for a
  /// failure at run time, a text that holds no path.
  [[nodiscard]] bool MakePath(std::string_view path) const;

  /// Deletes a file; whether that worked is not looked at.
  void DeleteLocalFile(std::string_view path) const;

  [[nodiscard]] const PathMap& Paths() const { return paths_; }

 private:
  const PathMap& paths_;
  const RegionalFormats& formats_;
};

}  // namespace vantorium
