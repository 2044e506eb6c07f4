#pragma once

#include "core/generation/GalleryTarget.h"
#include "core/generation/changes/RunRecord.h"
#include "core/generation/changes/TargetFiles.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::generation {

/// What is known of the files at a run's target: those of the record, and those that the run delivers. Decides which of
/// them need not be delivered. A file that is delivered is unknown until its delivery has succeeded.
class KnownFiles {
 public:
  using Deliver = std::function<Delivery()>;

  KnownFiles(MadeFiles files, TargetFiles& there) : files_(std::move(files)), there_(there) {}

  /// Returns the file if the target has it and its bytes have that origin, else null. An empty origin is never known.
  /// Forgets a file that is not as it was left.
  [[nodiscard]] const MadeFile* FindCurrent(const std::string& name, const std::string& origin);
  /// Returns whether FindCurrent will probably find it. Asks nothing of the target.
  [[nodiscard]] bool WillBeCurrent(const std::string& name, const std::string& origin) const;

  /// Delivers a page, unless the target has its bytes.
  [[nodiscard]] Delivery StorePage(const std::string& name, std::string_view bytes, const Deliver& deliver);
  /// Delivers a picture. `originAfter` is called after the delivery. A server that has the bytes gets nothing.
  [[nodiscard]] Delivery StorePicture(const std::string& name, std::string_view bytes, const Deliver& deliver,
                                      const std::function<std::string()>& originAfter);
  /// Delivers a copy of a file, unless the target has it.
  [[nodiscard]] Delivery Copy(const std::string& name, const std::optional<std::filesystem::path>& source,
                              const Deliver& deliver);

  [[nodiscard]] const MadeFiles& Files() const { return files_; }
  [[nodiscard]] TargetFiles& There() { return there_; }
  /// Return the names of the known files that this run has asked for, and of the others.
  [[nodiscard]] std::vector<std::string> Touched() const { return Names(/*touched=*/true); }
  [[nodiscard]] std::vector<std::string> Untouched() const { return Names(/*touched=*/false); }
  /// Returns whether the file is as a run left it. Forgets it otherwise.
  [[nodiscard]] bool IsAsLeft(const std::string& name);
  /// Removes a file that is as a run left it. Returns false if it stays.
  [[nodiscard]] bool Remove(const std::string& name);

 private:
  [[nodiscard]] const MadeFile* Find(const std::string& name) const;
  /// Returns the file if the target has these bytes, else null.
  [[nodiscard]] MadeFile* FindBytes(const std::string& name, const MadeFile& made);
  void Note(const std::string& name, MadeFile made);
  [[nodiscard]] std::vector<std::string> Names(bool touched) const;

  MadeFiles files_;
  TargetFiles& there_;
  std::set<std::string> touched_;
  bool isDoubtful_ = false;  // whether a file of the record was missing: then others may be, too
};

}  // namespace vantorium::generation
