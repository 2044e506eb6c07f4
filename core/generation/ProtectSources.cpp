#include "core/generation/ProtectSources.h"

#include "core/generation/AuxiliaryFiles.h"
#include "core/generation/OutputNaming.h"
#include "core/generation/PictureRecipes.h"
#include "core/generation/RunMessages.h"
#include "core/generation/SourceStamp.h"

#include <set>
#include <utility>

namespace vantorium::generation {
namespace {

/// A file that the run will write.
struct Output {
  std::string path;
  std::string failure;   ///< message if it cannot be written
  std::string source{};  ///< the file it is a plain copy of; empty if it is generated
};
using Outputs = std::vector<Output>;

/// The files that the gallery is made from, by device and inode.
class Sources {
 public:
  explicit Sources(const RunState& run) : run_(run) {}

  void Add(const std::string& path) {
    if (const auto identity = IdentityOf(path)) known_.insert(*identity);
  }
  /// Whether writing `output` would destroy a source. A copy onto itself changes nothing.
  [[nodiscard]] bool WouldLoseOneTo(const Output& output) const {
    const auto identity = IdentityOf(output.path);
    if (!identity || !known_.contains(*identity)) return false;
    return output.source.empty() || IdentityOf(output.source) != identity;
  }

 private:
  using Identity = std::pair<std::uint64_t, std::uint64_t>;

  [[nodiscard]] std::optional<Identity> IdentityOf(const std::string& path) const {
    const auto native = run_.files.Paths().ToNative(path);
    const auto stamp = native ? StampOf(*native) : std::nullopt;
    if (!stamp) return std::nullopt;
    return Identity(stamp->device, stamp->inode);
  }

  const RunState& run_;
  std::set<Identity> known_;
};

Output Page(const RunState& run, const std::string& name) {
  const std::string path = run.OutputFolder + name;
  return {path, UnableToCreatePage(path)};
}

/// An existing picture is kept if the run does not overwrite. A server is asked only at the picture's turn.
bool StaysAsItIs(const RunContext& context, bool (GalleryTarget::*exists)(const ImageRunInfo&),
                 const ImageRunInfo& image) {
  return !context.order.Overwrite && context.target.MayAskAhead() && (context.target.*exists)(image);
}

void AddImage(Outputs& outputs, const RunContext& context, std::int32_t number) {
  const RunState& run = context.run;
  const ImageRunInfo& image = run.Info(number);
  const bool copied = !ImageRecipe(run, number);
  const bool publishes = run.mode == GenerationMode::Publish;
  if ((copied && publishes) || StaysAsItIs(context, &GalleryTarget::ImageExists, image)) return;
  const std::string failure = publishes ? UnableToCopyTemporarily(image.Path) : UnableToCopy(image.Path);
  outputs.push_back({LocalImagePath(run, image), failure, copied ? image.Path : ""});
}

void AddThumbnail(Outputs& outputs, const RunContext& context, std::int32_t number) {
  const ImageRunInfo& image = context.run.Info(number);
  if (StaysAsItIs(context, &GalleryTarget::ThumbnailExists, image)) return;
  outputs.push_back({LocalThumbnailPath(context.run, image), UnableToCreateThumbnail(image.Path)});
}

Outputs OutputsOfImage(const RunContext& context, std::int32_t number) {
  const RunState& run = context.run;
  const bool produces = run.mode != GenerationMode::Preview;
  Outputs outputs;
  if (produces && context.order.CreateImages) AddImage(outputs, context, number);
  if (produces && context.order.CreateThumbnails) AddThumbnail(outputs, context, number);
  if (context.order.CreateHTML && core::IsOn(run.project.checkImageWrapperUse)) {
    outputs.push_back(Page(run, WrapperPageName(run.project, run.ListText(number))));
  }
  return outputs;
}

std::vector<AuxiliaryFile> AuxiliaryFiles(const RunState& run) {
  auto files = Backdrops(run);
  for (auto& graphic : PageLinkGraphics(run)) files.push_back(std::move(graphic));
  return files;
}

Outputs AuxiliaryOutputs(const RunState& run) {
  Outputs outputs;
  if (run.mode == GenerationMode::Publish) return outputs;
  for (const AuxiliaryFile& file : AuxiliaryFiles(run)) {
    outputs.push_back({run.LocalImagesDir + file.name, UnableToCopyAuxiliary(file), file.source});
  }
  return outputs;
}

PhaseResult Check(const RunContext& context, const Sources& sources, const Outputs& outputs) {
  for (const Output& output : outputs) {
    if (!sources.WouldLoseOneTo(output)) continue;
    return context.Fail(
        "File Error", output.failure + "  It would replace \"" + output.path + "\", which this Gallery is made from.");
  }
  return kGoOn;
}

/// Gives the event loop a turn every so often: checking the files of a long list takes a while.
PhaseResult Pause(const RunContext& context, std::int32_t number) {
  constexpr std::int32_t kPauseEvery = 1000;
  if (number % kPauseEvery == 0 && context.Cancelled()) return RunEnd::Cancelled;
  return kGoOn;
}

PhaseResult FindSources(const RunContext& context, Sources& sources) {
  const RunState& run = context.run;
  sources.Add(run.ProjectFile);
  for (const AuxiliaryFile& file : AuxiliaryFiles(run)) sources.Add(file.source);
  for (std::int32_t number = 1; number <= run.ImageCount; ++number) {
    if (auto end = Pause(context, number)) return end;
    sources.Add(run.Info(number).Path);
  }
  return kGoOn;
}

PhaseResult CheckImages(const RunContext& context, const Sources& sources) {
  for (std::int32_t number = 1; number <= context.run.ImageCount; ++number) {
    if (auto end = Pause(context, number)) return end;
    if (auto end = Check(context, sources, OutputsOfImage(context, number))) return end;
  }
  return kGoOn;
}

PhaseResult CheckPages(const RunContext& context, const Sources& sources) {
  const RunState& run = context.run;
  if (!context.order.CreateHTML) return kGoOn;
  if (auto end = Check(context, sources, {Page(run, run.IndexFileName)})) return end;
  for (std::int32_t page = 1; page <= run.ThumbnailPageCount; ++page) {
    if (auto end = Pause(context, page)) return end;
    if (auto end = Check(context, sources, {Page(run, ThumbnailPageName(run.project, page))})) return end;
  }
  return kGoOn;
}

}  // namespace

PhaseResult ProtectSources(const RunContext& context) {
  Sources sources(context.run);
  if (auto end = FindSources(context, sources)) return end;
  if (auto end = CheckImages(context, sources)) return end;
  if (auto end = Check(context, sources, AuxiliaryOutputs(context.run))) return end;
  return CheckPages(context, sources);
}

}  // namespace vantorium::generation
