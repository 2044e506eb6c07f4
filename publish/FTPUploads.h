#pragma once

#include <string>

namespace vantorium {

/// What the upload of a folder needs of the FTP client. Remote paths are relative to where the session stands.
class FTPUploads {
 public:
  virtual ~FTPUploads() = default;

  /// Makes each level of a path. True when every one could be entered and left again.
  [[nodiscard]] virtual bool FTPCreateDirectoryPath(const std::string& path) = 0;
  /// Sends a local file, given as path text. True when all of it is out, and when `overwrite` is false and the server
  /// has the file already. Throws RuntimeFailure.
  [[nodiscard]] virtual bool FTPCopyFile(const std::string& localPath, const std::string& remotePath,
                                         bool overwrite) = 0;
};

}  // namespace vantorium
