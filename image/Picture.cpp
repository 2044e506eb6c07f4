#include "image/Picture.h"

#include "env/RuntimeFailure.h"
#include "image/JPEGDecoder.h"
#include "image/PictureOutput.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace vantorium {
namespace {

/// An output that keeps its failure: one output may fail without the other, and a failure counts only if the source
/// proves to be a picture.
class GuardedOutput {
 public:
  GuardedOutput(const std::optional<PictureRecipe>& recipe, PictureSize source, PictureFile& file) : file_(file) {
    Guard([&] {
      if (recipe) output_.emplace(*recipe, source);
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
    } catch (const RuntimeFailure&) {
      file_.failure = std::current_exception();
      output_.reset();
    }
  }

  PictureFile& file_;
  std::optional<PictureOutput> output_;
};

/// Reads the requested rows, from the top of the picture down, and keeps the last two.
class RowReader {
 public:
  explicit RowReader(JPEGDecoder& decoder)
      : decoder_(decoder),
        position_(decoder.height()),
        row_(static_cast<std::size_t>(decoder.width()) * 3),
        above_(row_.size()) {}

  /// Advances to `row`. Returns false if the data are damaged or truncated.
  [[nodiscard]] bool ReadRow(std::int32_t row) {
    const std::int32_t skipped = position_ - row - 1;
    if (skipped > 0 && !decoder_.SkipRows(skipped)) return false;
    std::swap(row_, above_);
    position_ = row;
    return decoder_.ReadRow(row_.data());
  }
  [[nodiscard]] const std::uint8_t* Row() const { return row_.data(); }
  [[nodiscard]] const std::uint8_t* RowAbove() const { return above_.data(); }

 private:
  JPEGDecoder& decoder_;
  std::int32_t position_;
  std::vector<std::uint8_t> row_;
  std::vector<std::uint8_t> above_;
};

WantedPixels PixelsFor(const GuardedOutput& image, const GuardedOutput& thumbnail, PictureSize source) {
  WantedPixels pixels(source.width, source.height);
  image.MarkSource(pixels);
  thumbnail.MarkSource(pixels);
  pixels.rows.back() = 1;
  return pixels;
}

/// Always reads the bottom row: only then does libjpeg-turbo report damage in the rows after the last one needed.
bool PassRows(JPEGDecoder& decoder, GuardedOutput& image, GuardedOutput& thumbnail, const std::stop_token& stop) {
  RowReader reader(decoder);
  for (std::int32_t row = decoder.height(); row > 0;) {
    row = std::max({image.NextSourceRow(), thumbnail.NextSourceRow(), 0});
    if (stop.stop_requested() || !reader.ReadRow(row)) return false;
    image.TakeSourceRow(row, reader.Row(), reader.RowAbove());
    thumbnail.TakeSourceRow(row, reader.Row(), reader.RowAbove());
  }
  return decoder.Finish();
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
  const auto share = work.budget.Take(decoder.HeldBytes(), work.stop);
  const PictureSize size = {decoder.width(), decoder.height()};
  GuardedOutput image(request.image, size, files.image);
  GuardedOutput thumbnail(request.thumbnail, size, files.thumbnail);
  decoder.Want(PixelsFor(image, thumbnail, size));
  if (!decoder.Start() || !PassRows(decoder, image, thumbnail, work.stop)) return {};
  image.Finish();
  thumbnail.Finish();
  files.decoded = true;
  return files;
}

}  // namespace vantorium
