#include "core/generation/changes/UnusedFiles.h"

#include "core/CaseFolding.h"
#include "core/generation/RunOutputs.h"
#include "core/generation/changes/GalleryNames.h"
#include "env/PathText.h"

#include <set>

#include <fmt/format.h>

namespace vantorium::generation {
namespace {

using Names = std::vector<std::string>;

/// The files in use, in the ways by which they can be recognized.
class FilesInUse {
 public:
  FilesInUse(const RunContext& context, KnownFiles& known)
      : run_(context.run), isServer_(known.There().IsServer()), files_(context.run) {
    const bool isUpload = context.order.Mode == GenerationMode::Upload;
    for (const std::string& name : isUpload ? known.Touched() : NamesOfGallery(run_, context.order)) Add(name);
    if (isServer_) return;
    files_.AddSharedSources();
    for (const ImageRunInfo& image : run_.RunInfo) files_.Add(image.Path);
  }

  [[nodiscard]] bool Has(const std::string& name, const std::optional<SourceStamp>& stamp) const {
    if (names_.contains(name) || folded_.contains(core::FoldCase(name))) return true;
    return stamp && files_.Has(*stamp);
  }

 private:
  void Add(const std::string& name) {
    names_.insert(name);
    if (isServer_) {
      folded_.insert(core::FoldCase(name));
    } else {
      files_.Add(run_.OutputFolder + env::WithBackslashes(name));
    }
  }

  const RunState& run_;
  bool isServer_;
  std::set<std::string> names_;
  std::set<std::string> folded_;
  FileSet files_;
};

/// Returns the names of earlier runs that are not in use. Most runs have none, and need not look at all files.
Names UnusedNames(const RunContext& context, KnownFiles& known) {
  Names unused = known.Untouched();
  if (unused.empty()) return unused;
  const FilesInUse used(context, known);
  std::erase_if(unused, [&](const std::string& name) { return used.Has(name, known.Files().at(name).stamp); });
  return unused;
}

}  // namespace

PhaseResult TellUnusedFiles(const RunContext& context, KnownFiles& known) {
  const bool removes = context.order.RemoveUnused;
  Names found;
  for (const std::string& name : UnusedNames(context, known)) {
    const char* const doing = removes ? "Removing" : "Looking for";
    if (auto end = context.Begin(fmt::format("{} unused File \"{}\"...", doing, name))) return end;
    if (removes ? known.Remove(name) : known.IsAsLeft(name)) found.push_back(name);
  }
  if (found.empty()) return kGoOn;
  const char* const text = removes ? "These Files of earlier Runs were not used any more and have been removed."
                                   : "These Files of earlier Runs are not used any more.";
  context.environment.boxes.ShowList("Unused Files", text, fmt::format("{}", fmt::join(found, "\r")));
  return kGoOn;
}

}  // namespace vantorium::generation
