#include "ui/model/files/ReducedPicture.h"

#include "image/JPEGDecoder.h"
#include "image/Photograph.h"
#include "image/PhotographNotes.h"

#include <algorithm>

namespace vantorium::ui {

int DivisorFor(image::PictureSize picture, image::PictureSize box) {
  const int most = std::max(picture.width / std::max(1, box.width), picture.height / std::max(1, box.height));
  int divisor = 1;
  while (divisor < 8 && divisor * 2 <= most) divisor *= 2;
  return divisor;
}

bool LoadReducedPicture(image::cDIBSection& dib, const std::filesystem::path& file, image::PictureSize box,
                        const std::stop_token& stop, image::Corrections corrections) {
  image::JPEGDecoder decoder;
  decoder.StopWith(stop);
  if (!decoder.Open(file) || !decoder.IsPlausible()) return false;
  const image::Turn turn(image::ReadPhotographNotes(file, {.upright = corrections.upright}).orientation);
  decoder.ReduceBy(DivisorFor({.width = decoder.width(), .height = decoder.height()}, turn.SizeOf(box)));
  if (!dib.Create(decoder.OutputWidth(), decoder.OutputHeight()) || !decoder.Start()) return false;
  for (std::int32_t row = dib.height() - 1; row >= 0; --row) {
    if (!decoder.ReadRow(dib.Row(row))) return false;
  }
  return decoder.Finish() && image::Correct(dib, file, corrections);
}

}  // namespace vantorium::ui
