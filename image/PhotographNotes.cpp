#include "image/PhotographNotes.h"

#include "image/ExifOrientation.h"
#include "image/JPEGSegments.h"
#include "image/ProfileChunks.h"

namespace vantorium::image {
namespace {

constexpr int kAPP1 = 0xE1;
constexpr int kAPP2 = 0xE2;

// The frame header: precision, height and width as 16 bits each, the number of channels.
constexpr std::size_t kChannelsPlace = 5;

// SOF0 to SOF15 without DHT, JPG and DAC, which are among them.
bool IsFrameHeader(int marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

int ChannelsIn(const std::string& frameHeader) {
  return frameHeader.size() > kChannelsPlace ? static_cast<unsigned char>(frameHeader[kChannelsPlace]) : 0;
}

}  // namespace

PhotographNotes ReadPhotographNotes(const std::filesystem::path& file, Corrections corrections) {
  PhotographNotes notes;
  if (!corrections.Any()) return notes;
  JPEGSegments segments(file);
  std::optional<Orientation> orientation;
  ProfileChunks chunks;
  while (const auto marker = segments.Next()) {
    const bool isOriented = orientation || !corrections.upright;
    if (isOriented && !corrections.trueColors) break;
    if (marker == kAPP1 && !isOriented) orientation = OrientationInExif(segments.Contents());
    if (!corrections.trueColors) continue;
    if (marker == kAPP2) chunks.Take(segments.Contents());
    if (IsFrameHeader(*marker)) notes.channels = ChannelsIn(segments.Contents());
  }
  notes.orientation = orientation.value_or(Orientation::AsStored);
  notes.profile = chunks.Profile();
  return notes;
}

}  // namespace vantorium::image
