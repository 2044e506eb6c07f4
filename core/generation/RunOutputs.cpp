#include "core/generation/RunOutputs.h"

#include "core/generation/OutputNaming.h"
#include "core/generation/PictureRecipes.h"
#include "core/generation/RunMessages.h"
#include "core/generation/SourceStamp.h"

namespace vantorium::generation {
namespace {

/// An existing picture is kept if the run does not overwrite. A server is asked only at the picture's turn.
bool StaysAsItIs(const RunPlan& plan, bool (GalleryTarget::*exists)(const ImageRunInfo&), const ImageRunInfo& image) {
  return !plan.order.Overwrite && plan.target != nullptr && (plan.target->*exists)(image);
}

void AddImage(std::vector<Output>& outputs, const RunPlan& plan, std::int32_t number) {
  const RunState& run = plan.run;
  const ImageRunInfo& image = run.Info(number);
  const bool copied = AreImagesCopied(run.project);
  const bool publishes = run.mode == GenerationMode::Publish;
  if ((copied && publishes) || StaysAsItIs(plan, &GalleryTarget::ImageExists, image)) return;
  const std::string failure =
      publishes ? UnableToCopyTemporarily(run.Shown(image.Path)) : UnableToCopy(run.Shown(image.Path));
  outputs.push_back({LocalImagePath(run, image), failure, copied ? image.Path : ""});
}

void AddThumbnail(std::vector<Output>& outputs, const RunPlan& plan, std::int32_t number) {
  const ImageRunInfo& image = plan.run.Info(number);
  if (StaysAsItIs(plan, &GalleryTarget::ThumbnailExists, image)) return;
  outputs.push_back({LocalThumbnailPath(plan.run, image), UnableToCreateThumbnail(plan.run.Shown(image.Path))});
}

}  // namespace

Output PageOutput(const RunState& run, const std::string& name) {
  const std::string path = run.OutputFolder + name;
  return {path, UnableToCreatePage(run.Shown(path))};
}

std::vector<Output> OutputsOfImage(const RunPlan& plan, std::int32_t number) {
  const RunState& run = plan.run;
  const bool produces = run.mode != GenerationMode::Preview;
  std::vector<Output> outputs;
  if (produces && plan.order.CreateImages) AddImage(outputs, plan, number);
  if (produces && plan.order.CreateThumbnails) AddThumbnail(outputs, plan, number);
  if (plan.order.CreateHTML && core::IsOn(run.project.checkImageWrapperUse)) {
    outputs.push_back(PageOutput(run, WrapperPageName(run.project, run.ListText(number))));
  }
  return outputs;
}

std::vector<AuxiliaryFile> AuxiliaryFilesOf(const RunState& run) {
  auto files = Backdrops(run);
  for (auto& graphic : PageLinkGraphics(run)) files.push_back(std::move(graphic));
  return files;
}

std::vector<Output> AuxiliaryOutputs(const RunState& run) {
  std::vector<Output> outputs;
  if (run.mode == GenerationMode::Publish) return outputs;
  for (const AuxiliaryFile& file : AuxiliaryFilesOf(run)) {
    outputs.push_back({run.LocalImagesDir + file.name, UnableToCopyAuxiliary(run, file), file.source});
  }
  return outputs;
}

void FileSet::Add(const std::string& path) {
  if (const auto identity = IdentityOf(path)) known_.insert(*identity);
}

void FileSet::AddSharedSources() {
  Add(run_.ProjectFile);
  for (const AuxiliaryFile& file : AuxiliaryFilesOf(run_)) Add(file.source);
}

bool FileSet::WouldLoseOneTo(const Output& output) const {
  const auto identity = IdentityOf(output.path);
  if (!identity || !known_.contains(*identity)) return false;
  return output.source.empty() || IdentityOf(output.source) != identity;
}

std::optional<FileSet::Identity> FileSet::IdentityOf(const std::string& path) const {
  const auto native = run_.files.Paths().ToNative(path);
  const auto stamp = native ? StampOf(*native) : std::nullopt;
  if (!stamp) return std::nullopt;
  return Identity(stamp->device, stamp->inode);
}

}  // namespace vantorium::generation
