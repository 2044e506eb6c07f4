#include "image/Picture.h"

#include "env/RuntimeFailure.h"
#include "image/JPEGDecoder.h"
#include "image/PhotographNotes.h"
#include "image/PictureOutput.h"
#include "image/SRGBTransform.h"
#include "image/UprightRows.h"

#include <algorithm>

namespace vantorium::image {
namespace {

/// An output that keeps its failure: one output may fail without the other, and a failure counts only if the source
/// proves to be a picture.
class GuardedOutput {
 public:
  GuardedOutput(const std::optional<PictureRecipe>& recipe, PictureSize source, const SRGBTransform* colors,
                PictureFile& file)
      : file_(file) {
    Guard([&] {
      if (recipe) output_.emplace(*recipe, source, colors);
    });
  }

  void MarkSource(WantedPixels& pixels) const {
    if (output_) output_->MarkSource(pixels);
  }
  [[nodiscard]] std::int32_t NextSourceRow() const { return output_ ? output_->NextSourceRow() : -1; }
  void TakeSourceRow(std::int32_t row, const std::uint8_t* bytes, const std::uint8_t* above) {
    Guard([&] {
      if (output_) output_->TakeSourceRow(row, bytes, above);
    });
  }
  void Finish() {
    Guard([&] {
      if (output_) file_.jpeg = output_->Finish();
    });
  }

 private:
  template <typename Work>
  void Guard(Work work) {
    try {
      work();
    } catch (const env::RuntimeFailure&) {
      file_.failure = std::current_exception();
      output_.reset();
    }
  }

  PictureFile& file_;
  std::optional<PictureOutput> output_;
};

WantedPixels PixelsFor(const GuardedOutput& image, const GuardedOutput& thumbnail, PictureSize source) {
  WantedPixels pixels(source.width, source.height);
  image.MarkSource(pixels);
  thumbnail.MarkSource(pixels);
  pixels.rows.back() = 1;
  return pixels;
}

/// Always reads the bottom row: only then does libjpeg-turbo report damage in the rows after the last one needed.
bool PassRows(UprightRows& rows, std::int32_t height, GuardedOutput& image, GuardedOutput& thumbnail,
              const std::stop_token& stop) {
  for (std::int32_t row = height; row > 0;) {
    row = std::max({image.NextSourceRow(), thumbnail.NextSourceRow(), 0});
    if (stop.stop_requested() || !rows.ReadRow(row)) return false;
    image.TakeSourceRow(row, rows.Row(), rows.RowAbove());
    thumbnail.TakeSourceRow(row, rows.Row(), rows.RowAbove());
  }
  return true;
}

}  // namespace

const std::string& PictureFile::Bytes() const {
  if (failure) std::rethrow_exception(failure);
  return jpeg;
}

PictureFiles MakePictures(const std::filesystem::path& source, const PictureRequest& request, const PictureWork& work) {
  PictureFiles files;
  JPEGDecoder decoder;
  decoder.StopWith(work.stop);
  if (!decoder.Open(source) || !decoder.IsPlausible()) return files;
  const PhotographNotes notes = ReadPhotographNotes(source, request.corrections);
  const auto colors = SRGBTransform::For(notes.profile, notes.channels);
  const PictureSize size = Turn(notes.orientation).SizeOf({decoder.width(), decoder.height()});
  GuardedOutput image(request.image, size, colors.get(), files.image);
  GuardedOutput thumbnail(request.thumbnail, size, colors.get(), files.thumbnail);
  UprightRows rows(decoder, notes.orientation, PixelsFor(image, thumbnail, size));
  const auto share = work.budget.Take(decoder.HeldBytes() + rows.HeldBytes(), work.stop);
  if (!rows.Start(work.stop) || !PassRows(rows, size.height, image, thumbnail, work.stop)) return {};
  if (!decoder.Finish()) return {};
  image.Finish();
  thumbnail.Finish();
  files.decoded = true;
  return files;
}

}  // namespace vantorium::image
