#include "core/generation/ProducePictures.h"

#include "core/generation/PictureRecipes.h"
#include "core/generation/PictureWorkshop.h"
#include "core/generation/RunMessages.h"
#include "core/generation/ThumbnailSpool.h"
#include "env/RuntimeFailure.h"

#include <vector>

namespace vantorium::generation {
namespace {

/// A thumbnail made together with its image.
struct EarlyThumbnail {
  SourceStamp source;
  ThumbnailSpool::Place place;
};

class PictureProduction {
 public:
  explicit PictureProduction(const RunContext& context)
      : context_(context),
        run_(context.run),
        spool_(run_.files.Paths().ToNative(run_.OutputFolder).value_or(".")),
        early_(run_.RunInfo.size()) {}

  [[nodiscard]] PhaseResult Images();
  [[nodiscard]] PhaseResult Sizes();
  [[nodiscard]] PhaseResult Thumbnails();

 private:
  using Number = std::int32_t;
  using Step = PhaseResult (PictureProduction::*)(PictureWorkshop&, Number);

  [[nodiscard]] PhaseResult ForEach(PictureWorkshop& workshop, Step step);
  [[nodiscard]] PhaseResult ImageStep(PictureWorkshop& workshop, Number number);
  [[nodiscard]] PhaseResult SizeStep(Number number);
  [[nodiscard]] PhaseResult ThumbnailStep(PictureWorkshop& workshop, Number number);
  [[nodiscard]] PhaseResult CopyImage(Number number);
  [[nodiscard]] PhaseResult MakeImage(PictureWorkshop& workshop, Number number);
  [[nodiscard]] PhaseResult MakeThumbnail(PictureWorkshop& workshop, Number number);

  [[nodiscard]] std::optional<PictureTask> PlanImage(Number number);
  [[nodiscard]] std::optional<PictureTask> PlanThumbnail(Number number);
  [[nodiscard]] PictureTask Task(Number number, image::PictureRequest request) const;
  [[nodiscard]] std::optional<image::PictureFiles> Take(PictureWorkshop& workshop, Number number,
                                                        const PictureTask& task);
  [[nodiscard]] const std::string& BytesOf(const image::PictureFile& file, Number number) const;
  [[nodiscard]] std::optional<std::string> EarlyBytes(Number number) const;
  void KeepThumbnail(Number number, const MadePictures& made);

  [[nodiscard]] bool KeepsExistingImage(Number number) {
    return !context_.order.Overwrite && context_.target.ImageExists(run_.Info(number));
  }
  [[nodiscard]] bool KeepsExistingThumbnail(Number number) {
    return !context_.order.Overwrite && context_.target.ThumbnailExists(run_.Info(number));
  }
  /// Whether it is known ahead that a picture will be kept. If the target cannot be asked ahead, the picture is made
  /// ahead, in vain if it exists; but work ahead starts only after a picture that did not exist.
  [[nodiscard]] bool WillKeepImage(Number number) {
    return (context_.target.MayAskAhead() && KeepsExistingImage(number)) ||
           context_.target.WillHaveImage(run_.Info(number));
  }
  [[nodiscard]] bool WillKeepThumbnail(Number number) {
    return (context_.target.MayAskAhead() && KeepsExistingThumbnail(number)) ||
           context_.target.WillHaveThumbnail(run_.Info(number));
  }
  [[nodiscard]] ImageRunInfo& InfoOf(Number number) { return run_.RunInfo.at(static_cast<std::size_t>(number) - 1); }
  [[nodiscard]] PhaseResult Begin(const char* doing, Number number) const {
    return context_.Begin(std::string(doing) + " \"" + run_.ListText(number) + "\"...");
  }
  /// The result for a picture that could not be loaded: a failure with `text`, or Cancelled during a cancel.
  [[nodiscard]] PhaseResult NotLoaded(const std::string& text) const {
    return context_.Settle(Refusal{"File Error", text});
  }

  [[nodiscard]] PhaseResult ImageNotLoaded(Number number) const {
    return NotLoaded(UnableToCopy(run_.Shown(run_.Info(number).Path)));
  }

  const RunContext& context_;
  RunState& run_;
  ThumbnailSpool spool_;
  std::vector<std::optional<EarlyThumbnail>> early_;  // element i - 1 is for image i
};

PhaseResult PictureProduction::ForEach(PictureWorkshop& workshop, Step step) {
  for (Number number = 1; number <= run_.ImageCount; ++number) {
    if (auto end = (this->*step)(workshop, number)) return end;
  }
  return kGoOn;
}

PhaseResult PictureProduction::Images() {
  PictureWorkshop workshop(context_.environment.jobs, run_.ImageCount,
                           [this](Number number) { return PlanImage(number); });
  return ForEach(workshop, &PictureProduction::ImageStep);
}

PhaseResult PictureProduction::Thumbnails() {
  PictureWorkshop workshop(context_.environment.jobs, run_.ImageCount,
                           [this](Number number) { return PlanThumbnail(number); });
  return ForEach(workshop, &PictureProduction::ThumbnailStep);
}

PhaseResult PictureProduction::Sizes() {
  for (Number number = 1; number <= run_.ImageCount; ++number) {
    if (auto end = SizeStep(number)) return end;
  }
  return kGoOn;
}

// Images

PhaseResult PictureProduction::ImageStep(PictureWorkshop& workshop, Number number) {
  if (auto end = Begin("Copying File", number)) return end;
  if (KeepsExistingImage(number)) {
    InfoOf(number).FileSize = context_.target.ImageSizeText(InfoOf(number));
  } else if (!context_.target.HasImage(InfoOf(number))) {
    if (auto end = MakeImage(workshop, number)) return end;
  }
  context_.Advance();
  return kGoOn;
}

/// Reads the file's size first: if that fails there is no file to copy.
PhaseResult PictureProduction::CopyImage(Number number) {
  ImageRunInfo& image = InfoOf(number);
  try {
    image.FileSize = run_.files.GetFileSizeText(image.Path);
  } catch (const env::RuntimeFailure&) {
    return ImageNotLoaded(number);
  }
  return context_.Settle(context_.target.CopyImage(image));
}

PhaseResult PictureProduction::MakeImage(PictureWorkshop& workshop, Number number) {
  ImageRunInfo& image = InfoOf(number);
  const auto recipe = ImageRecipe(run_, number);
  if (!recipe) return CopyImage(number);
  const auto files = Take(workshop, number, Task(number, {recipe, {}}));
  if (!files) return RunEnd::Cancelled;
  if (!files->decoded) return ImageNotLoaded(number);
  return context_.Settle(context_.target.StoreImage(image, BytesOf(files->image, number)));
}

std::optional<PictureTask> PictureProduction::PlanImage(Number number) {
  const auto recipe = ImageRecipe(run_, number);
  if (!recipe || WillKeepImage(number)) return std::nullopt;
  image::PictureRequest request{recipe, {}};
  if (context_.order.CreateThumbnails && !WillKeepThumbnail(number)) {
    request.thumbnail = ThumbnailRecipe(run_, number);
  }
  return Task(number, std::move(request));
}

PhaseResult PictureProduction::SizeStep(Number number) {
  if (auto end = Begin("Getting Image File Size for", number)) return end;
  try {
    InfoOf(number).FileSize = context_.target.ImageSizeText(InfoOf(number));
  } catch (const env::RuntimeFailure&) {
    // A missing image keeps "0KB".
  }
  return kGoOn;
}

// Thumbnails

PhaseResult PictureProduction::ThumbnailStep(PictureWorkshop& workshop, Number number) {
  if (auto end = Begin("Creating Thumbnail for File", number)) return end;
  if (!KeepsExistingThumbnail(number) && !context_.target.HasThumbnail(run_.Info(number))) {
    if (auto end = MakeThumbnail(workshop, number)) return end;
  }
  context_.Advance();
  return kGoOn;
}

PhaseResult PictureProduction::MakeThumbnail(PictureWorkshop& workshop, Number number) {
  const ImageRunInfo& image = run_.Info(number);
  if (const auto bytes = EarlyBytes(number)) return context_.Settle(context_.target.StoreThumbnail(image, *bytes));
  const auto files = Take(workshop, number, Task(number, {{}, ThumbnailRecipe(run_, number)}));
  if (!files) return RunEnd::Cancelled;
  if (!files->decoded) return NotLoaded("Unable to load JPG Image \"" + run_.Shown(image.Path) + "\".");
  return context_.Settle(context_.target.StoreThumbnail(image, BytesOf(files->thumbnail, number)));
}

std::optional<PictureTask> PictureProduction::PlanThumbnail(Number number) {
  const bool isThere = early_.at(static_cast<std::size_t>(number) - 1).has_value();
  if (isThere || WillKeepThumbnail(number)) return std::nullopt;
  return Task(number, {{}, ThumbnailRecipe(run_, number)});
}

void PictureProduction::KeepThumbnail(Number number, const MadePictures& made) {
  const image::PictureFile& thumbnail = made.files.thumbnail;
  if (thumbnail.jpeg.empty() || !made.source) return;
  const auto place = spool_.Put(thumbnail.jpeg);
  if (place) early_.at(static_cast<std::size_t>(number) - 1) = EarlyThumbnail{*made.source, *place};
}

/// Returns the thumbnail made together with its image, if the source is still the same file.
std::optional<std::string> PictureProduction::EarlyBytes(Number number) const {
  const auto& early = early_.at(static_cast<std::size_t>(number) - 1);
  const auto source = run_.files.Paths().ToNative(run_.Info(number).Path);
  if (!early || !source || StampOf(*source) != early->source) return std::nullopt;
  return spool_.Get(early->place);
}

// Both

PictureTask PictureProduction::Task(Number number, image::PictureRequest request) const {
  request.corrections = core::CorrectionsOf(run_.project);
  return {run_.files.Paths().ToNative(run_.Info(number).Path).value_or(""), std::move(request)};
}

/// Returns the result of the work done ahead for `number`. If there is none, or the source has changed since, runs
/// `task` now. Returns nullopt if the run was cancelled meanwhile.
std::optional<image::PictureFiles> PictureProduction::Take(PictureWorkshop& workshop, Number number,
                                                           const PictureTask& task) {
  bool cancelled = false;
  auto made = workshop.Take(number, [&] {
    cancelled = context_.Cancelled();
    return !cancelled;
  });
  if (cancelled) return std::nullopt;
  if (!made || made->source != StampOf(task.source)) made = workshop.Make(task);
  KeepThumbnail(number, *made);
  return std::move(made->files);
}

/// A picture of a size that no file can have fails with the name of its source, from which the size follows.
const std::string& PictureProduction::BytesOf(const image::PictureFile& file, Number number) const {
  try {
    return file.Bytes();
  } catch (const env::RuntimeFailure& failure) {
    const auto kind = static_cast<env::FailureKind>(failure.Number());
    if (kind != env::FailureKind::InvalidArgument && kind != env::FailureKind::JPEGLibrary) throw;
    throw env::RuntimeFailure(kind, run_.Shown(run_.Info(number).Path) + ": " + failure.Description());
  }
}

}  // namespace

PhaseResult ProducePictures(const RunContext& context) {
  PictureProduction production(context);
  if (auto end = context.order.CreateImages ? production.Images() : production.Sizes()) return end;
  if (!context.order.CreateThumbnails) return kGoOn;
  return production.Thumbnails();
}

}  // namespace vantorium::generation
