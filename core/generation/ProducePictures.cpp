#include "core/generation/ProducePictures.h"

#include "core/generation/PictureRecipes.h"
#include "env/RuntimeFailure.h"
#include "image/Picture.h"

namespace vantorium {
namespace {

const char kFileError[] = "File Error";

std::string Announcement(const char* doing, const RunState& run, std::int32_t image) {
  return std::string(doing) + " \"" + run.ListText(image) + "\"...";
}

ImageRunInfo& InfoOf(const RunContext& context, std::int32_t image) {
  return context.run.RunInfo.at(static_cast<std::size_t>(image) - 1);
}

std::optional<std::string> MakeFrom(const RunContext& context, const ImageRunInfo& image, const PictureRecipe& recipe) {
  const auto native = context.run.files.Paths().ToNative(image.Path);
  if (!native) return std::nullopt;
  return MakePicture(*native, recipe);
}

/// A picture that could not be loaded: the cancel's own doing when one is under way, else a failure with `text`.
PhaseResult NotLoaded(const RunContext& context, const std::string& text) {
  return context.Settle(Refusal{kFileError, text});
}

PhaseResult MakeImage(const RunContext& context, std::int32_t number) {
  ImageRunInfo& image = InfoOf(context, number);
  const auto recipe = ImageRecipe(context.run, number);
  if (!recipe) return context.Settle(context.target.CopyImage(image));
  const auto jpeg = MakeFrom(context, image, *recipe);
  if (!jpeg) return NotLoaded(context, "Unable to copy the File \"" + image.Path + "\".");
  return context.Settle(context.target.StoreImage(image, *jpeg));
}

PhaseResult ImageStep(const RunContext& context, std::int32_t number) {
  ImageRunInfo& image = InfoOf(context, number);
  if (auto end = context.Begin(Announcement("Copying File", context.run, number))) return end;
  if (!context.arguments.Overwrite && context.target.ImageExists(image)) {
    image.FileSize = context.target.ImageSizeText(image);
  } else if (auto end = MakeImage(context, number)) {
    return end;
  }
  context.Advance();
  return kGoOn;
}

PhaseResult SizeStep(const RunContext& context, std::int32_t number) {
  ImageRunInfo& image = InfoOf(context, number);
  if (auto end = context.Begin(Announcement("Getting Image File Size for", context.run, number))) return end;
  try {
    image.FileSize = context.target.ImageSizeText(image);
  } catch (const RuntimeFailure&) {
    // An image that is not there keeps "0KB".
  }
  return kGoOn;
}

PhaseResult MakeThumbnail(const RunContext& context, std::int32_t number) {
  const ImageRunInfo& image = InfoOf(context, number);
  const auto jpeg = MakeFrom(context, image, ThumbnailRecipe(context.run, number));
  if (!jpeg) return NotLoaded(context, "Unable to load JPG Image \"" + image.Path + "\".");
  return context.Settle(context.target.StoreThumbnail(image, *jpeg));
}

PhaseResult ThumbnailStep(const RunContext& context, std::int32_t number) {
  const ImageRunInfo& image = InfoOf(context, number);
  if (auto end = context.Begin(Announcement("Creating Thumbnail for File", context.run, number))) return end;
  const bool kept = !context.arguments.Overwrite && context.target.ThumbnailExists(image);
  if (!kept) {
    if (auto end = MakeThumbnail(context, number)) return end;
  }
  context.Advance();
  return kGoOn;
}

template <typename Step>
PhaseResult ForEachImage(const RunContext& context, Step step) {
  for (std::int32_t number = 1; number <= context.run.ImageCount; ++number) {
    if (auto end = step(context, number)) return end;
  }
  return kGoOn;
}

}  // namespace

PhaseResult ProduceImages(const RunContext& context) {
  return ForEachImage(context, context.arguments.CreateImages ? ImageStep : SizeStep);
}

PhaseResult ProduceThumbnails(const RunContext& context) {
  if (!context.arguments.CreateThumbnails) return kGoOn;
  return ForEachImage(context, ThumbnailStep);
}

}  // namespace vantorium
