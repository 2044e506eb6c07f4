#include "image/JPEGSegments.h"

#include "image/jpeg/Markers.h"

namespace vantorium::image {
namespace {

using jpeg::kMarkerPrefix;

// TEM and RST0 to RST7
bool StandsAlone(int marker) {
  return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7);
}

}  // namespace

JPEGSegments::JPEGSegments(const std::filesystem::path& path) {
  std::uint64_t size = 0;
  file_ = OpenRegularFile(path, size);
  if (file_ == nullptr) return;
  const int first = std::getc(file_.get());
  const int second = std::getc(file_.get());
  if (first != kMarkerPrefix || second != jpeg::kStartOfImage) file_ = nullptr;
}

// Like libjpeg-turbo, skips bytes that belong to no segment, fill bytes and the zero that tells data from markers.
int JPEGSegments::NextMarker() {
  std::FILE* file = file_.get();
  for (;;) {
    int byte = std::getc(file);
    while (byte != kMarkerPrefix && byte != EOF) byte = std::getc(file);
    while (byte == kMarkerPrefix) byte = std::getc(file);
    if (byte != 0) return byte;
  }
}

std::optional<int> JPEGSegments::Next() {
  if (file_ == nullptr || (left_ > 0 && std::fseek(file_.get(), left_, SEEK_CUR) != 0)) return std::nullopt;
  left_ = 0;
  const int marker = NextMarker();
  const bool endsHeader = marker == jpeg::kStartOfScan || marker == jpeg::kEndOfImage || marker == jpeg::kStartOfImage;
  if (marker == EOF || endsHeader) return std::nullopt;
  if (StandsAlone(marker)) return marker;
  const int high = std::getc(file_.get());
  const int low = std::getc(file_.get());
  if (high == EOF || low == EOF) return std::nullopt;
  const long length = high * 256L + low;  // counts its own two bytes
  left_ = length > 2 ? length - 2 : 0;
  return marker;
}

std::string JPEGSegments::Contents() {
  std::string contents(static_cast<std::size_t>(left_), '\0');
  const std::size_t read = std::fread(contents.data(), 1, contents.size(), file_.get());
  left_ = 0;
  return read == contents.size() ? contents : std::string();
}

}  // namespace vantorium::image
