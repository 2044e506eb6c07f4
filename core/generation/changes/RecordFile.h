#pragma once

#include "core/generation/RunOrder.h"
#include "core/generation/changes/RunRecord.h"
#include "env/PathMap.h"

#include <filesystem>

namespace vantorium::generation {

/// The file in the user's cache folder that holds the record of one target: a local folder, or a folder that a user has
/// on a server. Nothing it does fails: a record that is lost costs time, no more.
class RecordFile {
 public:
  /// `cacheFolder`: native; made when it is needed. If it is empty, there is no file.
  RecordFile(const std::filesystem::path& cacheFolder, const RunOrder& order, const env::PathMap& paths);

  /// Returns the files of the record; none if there is no record, or one that cannot be believed.
  [[nodiscard]] MadeFiles Read() const;
  /// Returns the digest that tells the order's gallery from others in the same folder: that of its index page's name
  /// or, in Upload, of the folder that is sent.
  [[nodiscard]] const std::string& Gallery() const { return gallery_; }
  void Write(const MadeFiles& files) const;
  void Remove() const;

 private:
  RecordSubject subject_;
  std::string gallery_;
  std::filesystem::path file_;  ///< empty for none
};

}  // namespace vantorium::generation
