#include "core/generation/changes/PictureOrigins.h"

#include "core/ProjectFields.h"
#include "core/generation/PictureRecipes.h"
#include "env/Digest.h"
#include "env/RuntimeFailure.h"

#include <chrono>
#include <thread>

#include <fmt/format.h>

namespace vantorium::generation {
namespace {

using std::chrono::nanoseconds;

/// Returns all fields of a record, which are numbers and texts. The length goes before each value, so that no two
/// records have the same text.
template <typename Record, typename Fields>
std::string RecordText(const Record& record, const Fields& fields) {
  std::string text;
  for (const auto& field : fields) {
    const std::string value = std::visit([&](auto member) { return fmt::format("{}", record.*member); }, field.member);
    text += fmt::format("{}:{} ", value.size(), value);
  }
  return text;
}

std::string MaskText(const image::TextMask& mask) {
  const auto& words = mask.words();
  return fmt::format("{} {} {} {}\n", mask.left(), mask.top(), mask.width(), mask.height()) +
         std::string(reinterpret_cast<const char*>(words.data()), words.size() * sizeof(words.front()));
}

image::PictureSize ShownSize(const ImageRunInfo& image) {
  return {image.Width, image.Height};
}

nanoseconds Now() {
  return std::chrono::system_clock::now().time_since_epoch();
}

}  // namespace

std::string OriginOfCopy(const SourceStamp& source) {
  return env::DigestOf("copy " + StampText(source));
}

std::optional<SourceStamp> SettledStampOf(const std::filesystem::path& file) {
  constexpr nanoseconds kSlowestTick = std::chrono::milliseconds(20);
  const auto stamp = StampOf(file);
  if (!stamp) return stamp;
  const nanoseconds age = Now() - nanoseconds(stamp->changeTime);
  if (age < nanoseconds::zero() || age > kSlowestTick) return stamp;
  std::this_thread::sleep_for(kSlowestTick - age);
  return StampOf(file);
}

PictureOrigins::Known& PictureOrigins::KnownOf(const ImageRunInfo& image) {
  known_.resize(run_.RunInfo.size());
  auto& known = known_.at(static_cast<std::size_t>(image.Number) - 1);
  if (!known) {
    const auto native = run_.files.Paths().ToNative(image.Path);
    known = Known{.source = native ? SettledStampOf(*native) : std::nullopt, .image = {}, .thumbnail = {}};
  }
  return *known;
}

std::string PictureOrigins::OfImage(const ImageRunInfo& image) {
  Known& known = KnownOf(image);
  if (!known.image) known.image = known.source ? FindOriginOfImage(*known.source, image) : "";
  return *known.image;
}

std::string PictureOrigins::OfThumbnail(const ImageRunInfo& image) {
  Known& known = KnownOf(image);
  if (!known.thumbnail) {
    const auto recipe = ThumbnailRecipe(run_, image.Number);
    known.thumbnail = known.source ? FindOrigin(*known.source, recipe, recipe.size.value_or(image::PictureSize{}),
                                                run_.project.ThumbnailWatermark, thumbnailMasks_)
                                   : "";
  }
  return *known.thumbnail;
}

bool PictureOrigins::IsSourceUnchanged(const ImageRunInfo& image) const {
  const auto number = static_cast<std::size_t>(image.Number);
  const auto native = run_.files.Paths().ToNative(image.Path);
  return number <= known_.size() && known_[number - 1] && native && StampOf(*native) == known_[number - 1]->source;
}

/// A picture in the size of its source may be shown in another one; the watermark is then looked at in that size, where
/// it has the same letters.
std::string PictureOrigins::FindOriginOfImage(const SourceStamp& source, const ImageRunInfo& image) {
  const auto recipe = ImageRecipe(run_, image.Number);
  if (!recipe) return OriginOfCopy(source);
  return FindOrigin(source, *recipe, recipe->size.value_or(ShownSize(image)), run_.project.ImageWatermark, imageMasks_);
}

std::string PictureOrigins::FindOrigin(const SourceStamp& source, const image::PictureRecipe& recipe,
                                       image::PictureSize size, const image::WatermarkSettings& watermark,
                                       Masks& masks) const {
  const image::Corrections corrections = core::CorrectionsOf(run_.project);
  std::string text = "picture " + StampText(source) + "\n";
  text += recipe.size ? fmt::format("{} x {}\n", recipe.size->width, recipe.size->height) : "its own size\n";
  text += RecordText(recipe.filters, core::FilterFields()) + "\n";
  if (core::IsOn(recipe.filters.checkNoise)) text += fmt::format("noise {}\n", recipe.noiseNumber);
  text += fmt::format("corrections {} {}\n", corrections.upright, corrections.trueColors);
  if (!recipe.watermark) return env::DigestOf(text);
  try {
    const auto mask = recipe.watermark->MaskFor(size.width, size.height);
    if (mask && mask != masks.last) masks = {mask, env::DigestOf(MaskText(*mask))};
    text += "watermark " + RecordText(watermark, core::WatermarkFields()) + (mask ? masks.digest : "");
    return env::DigestOf(text);
  } catch (const env::RuntimeFailure&) {
    return {};  // the picture cannot be made, which is found when it is made
  }
}

}  // namespace vantorium::generation
