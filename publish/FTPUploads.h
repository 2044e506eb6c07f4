#pragma once

#include <string>

namespace vantorium::publish {

/// What FolderUpload needs from the FTP client. Remote paths are relative to the session's current directory.
class FTPUploads {
 public:
  virtual ~FTPUploads() = default;

  /// Creates each level of a path. Returns true if every one could be entered and left again.
  [[nodiscard]] virtual bool FTPCreateDirectoryPath(const std::string& path) = 0;
  /// Sends a local file, given as path text. Returns true if all of it was sent, or if `overwrite` is false and the
  /// server already has the file. Throws RuntimeFailure.
  [[nodiscard]] virtual bool FTPCopyFile(const std::string& localPath, const std::string& remotePath,
                                         bool overwrite) = 0;
};

}  // namespace vantorium::publish
