#pragma once

#include "core/generation/RunOrder.h"
#include "core/generation/changes/KnownFiles.h"
#include "env/PathMap.h"
#include "publish/FTPUploads.h"

namespace vantorium::generation {

/// Sends the files of a folder that the server does not have already.
class ChangedUploads : public publish::FTPUploads {
 public:
  ChangedUploads(const RunOrder& order, const env::PathMap& paths, KnownFiles& known, publish::FTPUploads& inner)
      : order_(order), paths_(paths), known_(known), inner_(inner) {}

  [[nodiscard]] bool FTPCreateDirectoryPath(const std::string& path) override {
    return inner_.FTPCreateDirectoryPath(path);
  }
  [[nodiscard]] bool FTPCopyFile(const std::string& localPath, const std::string& remotePath, bool overwrite) override;

 private:
  const RunOrder& order_;
  const env::PathMap& paths_;
  KnownFiles& known_;
  publish::FTPUploads& inner_;
};

}  // namespace vantorium::generation
