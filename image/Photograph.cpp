#include "image/Photograph.h"

#include "image/JPEG.h"
#include "image/PhotographNotes.h"
#include "image/SRGBTransform.h"

#include <utility>

namespace vantorium::image {
namespace {

void ApplyProfile(cDIBSection& dib, const PhotographNotes& notes) {
  const auto colors = SRGBTransform::For(notes.profile, notes.channels);
  if (!colors) return;
  for (std::int32_t row = 0; row < dib.height(); ++row) {
    colors->Apply(dib.Row(row), static_cast<std::size_t>(dib.width()));
  }
}

}  // namespace

bool ReadPhotographSize(const std::filesystem::path& file, bool upright, std::int32_t& width, std::int32_t& height) {
  if (!ReadJPEGSize(file, width, height)) return false;
  const Turn turn(ReadPhotographNotes(file, {.upright = upright}).orientation);
  if (turn.swapsSides) std::swap(width, height);
  return true;
}

bool LoadPhotograph(cDIBSection& dib, const std::filesystem::path& file, Corrections corrections) {
  return LoadJPEGImage(dib, file) && Correct(dib, file, corrections);
}

bool Correct(cDIBSection& dib, const std::filesystem::path& file, Corrections corrections) {
  const PhotographNotes notes = ReadPhotographNotes(file, corrections);
  ApplyProfile(dib, notes);
  return TurnUpright(dib, notes.orientation);
}

}  // namespace vantorium::image
