#include "image/jpeg/ScanData.h"

#include "image/jpeg/Markers.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <unistd.h>

namespace vantorium::image::jpeg {
namespace {

constexpr std::size_t kPiece = std::size_t{1} << 15;

}  // namespace

ScanData::ScanData(int descriptor, off_t place)
    : descriptor_(descriptor), place_(place), file_(kPiece), data_(2 * kPiece + 2 * kRoom) {}

bool ScanData::ReadFile() {
  ssize_t count = 0;
  do {
    count = ::pread(descriptor_, file_.data(), file_.size(), place_);
  } while (count < 0 && errno == EINTR);
  taken_ = 0;
  read_ = count > 0 ? static_cast<std::size_t>(count) : 0;
  place_ += static_cast<off_t>(read_);
  return read_ > 0;
}

int ScanData::NextByte() {
  if (taken_ == read_ && !ReadFile()) return -1;
  return file_[taken_++];
}

// The next byte is FF.
void ScanData::TakeMarkerOrByte() {
  ++taken_;
  const int second = NextByte();
  if (second == 0) {
    data_[size_++] = kMarkerPrefix;
  } else {
    whole_ = true;
    marker_ = static_cast<std::uint8_t>(std::max(second, 0));
  }
}

void ScanData::TakePiece() {
  if (taken_ == read_ && !ReadFile()) {
    whole_ = true;
    marker_ = 0;
    return;
  }
  const std::uint8_t* begin = file_.data() + taken_;
  const void* found = std::memchr(begin, kMarkerPrefix, read_ - taken_);
  const auto count =
      found == nullptr ? read_ - taken_ : static_cast<std::size_t>(static_cast<const std::uint8_t*>(found) - begin);
  std::memcpy(data_.data() + size_, begin, count);
  size_ += count;
  taken_ += count;
  if (found != nullptr) TakeMarkerOrByte();
}

// Each piece adds at most kPiece bytes, so the buffer is large enough.
void ScanData::Fill() {
  while (!whole_ && size_ < kPiece) TakePiece();
  std::memset(data_.data() + size_, 0, kRoom);
}

const std::uint8_t* ScanData::More(const std::uint8_t* unread) {
  const auto given = static_cast<std::size_t>(unread - data_.data());
  size_ -= given;
  std::memmove(data_.data(), unread, size_);
  Fill();
  return data_.data();
}

void ScanData::BeginSegment() {
  size_ = 0;
  whole_ = false;
  Fill();
}

}  // namespace vantorium::image::jpeg
