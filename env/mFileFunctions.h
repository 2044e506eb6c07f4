#pragma once

#include "env/CivilTime.h"
#include "env/PathMap.h"
#include "env/RegionalFormats.h"

#include <string>
#include <string_view>

namespace vantorium::env {

/// Returns `size` in bytes as display text: divided by 1024 while above 1023, rounded down, with " Bytes", "KB", "MB",
/// "GB", "TB" or "?".
[[nodiscard]] std::string FileSizeText(std::uint64_t size);

/// Returns `size` in bytes as sort text: decimal, padded on the left with "0" to 20 characters.
[[nodiscard]] std::string FileSizeKey(std::uint64_t size);

/// The program's operations on the local disk. Paths are path text, which the map converts to native paths. A path that
/// the map cannot convert does not exist.
class mFileFunctions {
 public:
  mFileFunctions(const PathMap& paths, const RegionalFormats& formats) : paths_(paths), formats_(formats) {}

  /// Returns the size of a file as FileSizeText, or as FileSizeKey if `sortable`. Throws RuntimeFailure FileNotFound,
  /// also for a folder.
  [[nodiscard]] std::string GetFileSizeText(std::string_view path, bool sortable = false) const;

  /// Returns the last write time of a file or folder. Throws RuntimeFailure FileTimeNotFound.
  [[nodiscard]] FileTime GetFileWriteTime(std::string_view path) const;

  /// Returns the UTC date or time of `time` in the regional format `kind`; empty for a kind outside 0 to 3 and for a
  /// time before 1601.
  [[nodiscard]] std::string FormatFileTime(FileTime time, int kind) const;

  /// Returns the last write time of a file, in UTC: as "yyyymmdd hh:mm:ss" if `sortable`, else as FormatFileTime.
  /// Throws RuntimeFailure FileTimeNotFound.
  [[nodiscard]] std::string GetFileDateTimeText(std::string_view path, bool sortable, int kind = 0) const;

  /// Whether a file or folder of that name exists.
  [[nodiscard]] bool PathExists(std::string_view path) const;

  /// Copies bytes, permissions and write time. The destination appears only when it is complete. If `overwrite` is
  /// false, an existing destination makes the copy fail; otherwise copying a file onto itself succeeds and changes
  /// nothing.
  [[nodiscard]] bool CopyLocalFile(std::string_view source, std::string_view destination, bool overwrite) const;

  /// Sets the access and write times of `target` to those of `source`. Returns true if they were set.
  bool CopyFileTimes(std::string_view source, std::string_view target) const;

  /// Creates a folder with its parents. A folder that cannot be created is not reported here: the next write fails.
  /// Returns false only for a text that cannot be a path because it contains a NUL.
  [[nodiscard]] bool MakePath(std::string_view path) const;

  /// Deletes a file. Failures are ignored.
  void DeleteLocalFile(std::string_view path) const;

  [[nodiscard]] const PathMap& Paths() const { return paths_; }

  // Part of the module's interface; the program itself does not call it.

  /// Whether a file or folder matches; the last part of the path may contain "*" and "?". The entries "." and ".." of a
  /// folder count, so "*" and "*.*" match in every folder. A path that ends in a separator matches nothing.
  [[nodiscard]] bool FileExists(std::string_view pattern) const;

 private:
  const PathMap& paths_;
  const RegionalFormats& formats_;
};

}  // namespace vantorium::env
