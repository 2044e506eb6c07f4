#pragma once

#include "core/generation/GalleryTarget.h"
#include "core/generation/changes/RunRecord.h"
#include "core/generation/changes/TargetFiles.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::generation {

/// What is known of the files at a run's target: those of the record, and those that the run delivers. Decides which of
/// them need not be delivered. A file that is delivered is unknown until its delivery has succeeded.
class KnownFiles {
 public:
  using Deliver = std::function<Delivery()>;

  /// `gallery`: digest that tells the run's gallery from others in the same folder.
  KnownFiles(MadeFiles files, TargetFiles& there, std::string gallery)
      : files_(std::move(files)), there_(there), gallery_(std::move(gallery)) {}

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
  /// Returns the names of the known files that this run has asked for.
  [[nodiscard]] std::vector<std::string> Touched() const;
  /// Returns the names of the known files that belong to this gallery alone and that the run has not asked for.
  [[nodiscard]] std::vector<std::string> Untouched() const;
  /// Returns whether the file is as a run left it. Forgets it otherwise.
  [[nodiscard]] bool IsAsLeft(const std::string& name);
  /// Removes a file that is as a run left it. Returns false if it stays.
  [[nodiscard]] bool Remove(const std::string& name);

 private:
  [[nodiscard]] const MadeFile* Find(const std::string& name) const;
  /// Notes that this run's gallery uses the file, perhaps as another one did before.
  void Touch(const std::string& name);
  /// Returns the file if the target has these bytes, else null.
  [[nodiscard]] MadeFile* FindBytes(const std::string& name, const MadeFile& made);
  void Note(const std::string& name, MadeFile made);

  MadeFiles files_;
  TargetFiles& there_;
  std::string gallery_;
  std::map<std::string, std::string> touched_;  // the files that the run has asked for, with the gallery of each
  bool isDoubtful_ = false;                     // whether a file of the record was missing: then others may be, too
};

}  // namespace vantorium::generation
