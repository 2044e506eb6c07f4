#pragma once

#include "core/generation/AuxiliaryFiles.h"
#include "core/generation/GalleryTarget.h"
#include "core/generation/RunOrder.h"
#include "core/generation/RunState.h"
#include "core/generation/SourceStamp.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace vantorium::generation {

/// What decides which files a run writes.
struct RunPlan {
  const RunState& run;
  const RunOrder& order;
  GalleryTarget* target;  ///< null if it may not be asked ahead what it has
};

/// A file that a run will write.
struct Output {
  std::string path;         ///< path text
  std::string failure;      ///< message if it cannot be written
  std::string source = {};  ///< the file it is a plain copy of; empty if it is generated
};

/// The image, the thumbnail and the wrapper page of image `number`, as far as the run writes them on this system.
[[nodiscard]] std::vector<Output> OutputsOfImage(const RunPlan& plan, std::int32_t number);
[[nodiscard]] std::vector<Output> AuxiliaryOutputs(const RunState& run);
[[nodiscard]] Output PageOutput(const RunState& run, const std::string& name);

/// All backdrops and link graphics of the run.
[[nodiscard]] std::vector<AuxiliaryFile> AuxiliaryFilesOf(const RunState& run);

/// Files by device and inode, so that each is recognized by every path and link that leads to it.
class FileSet {
 public:
  explicit FileSet(const RunState& run) : run_(run) {}

  /// Adds the file at `path` (path text), if there is one.
  void Add(const std::string& path);
  /// Adds what the gallery is made from besides its images: the project file, the backdrops and the link graphics.
  void AddSharedSources();
  [[nodiscard]] bool Has(const SourceStamp& file) const { return known_.contains({file.device, file.inode}); }
  /// Whether writing `output` would destroy one of the files. A copy onto itself changes nothing.
  [[nodiscard]] bool WouldLoseOneTo(const Output& output) const;

 private:
  using Identity = std::pair<std::uint64_t, std::uint64_t>;

  [[nodiscard]] std::optional<Identity> IdentityOf(const std::string& path) const;

  const RunState& run_;
  std::set<Identity> known_;
};

}  // namespace vantorium::generation
