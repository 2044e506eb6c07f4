#include "image/ProfileChunks.h"

#include <algorithm>

namespace vantorium::image {
namespace {

constexpr std::string_view kName("ICC_PROFILE\0", 12);
constexpr std::size_t kNumberPlace = kName.size();
constexpr std::size_t kCountPlace = kNumberPlace + 1;
constexpr std::size_t kDataPlace = kCountPlace + 1;

std::size_t ByteAt(std::string_view bytes, std::size_t place) {
  return static_cast<unsigned char>(bytes[place]);
}

}  // namespace

void ProfileChunks::Take(std::string_view segment) {
  if (!segment.starts_with(kName)) return;
  if (segment.size() <= kDataPlace) {
    wrong_ = true;
    return;
  }
  const std::size_t number = ByteAt(segment, kNumberPlace);
  const std::size_t count = ByteAt(segment, kCountPlace);
  const bool contradicts = count_ != 0 && count != count_;
  if (contradicts || number < 1 || number > count || !chunks_[number - 1].empty()) {
    wrong_ = true;
    return;
  }
  count_ = count;
  chunks_[number - 1] = segment.substr(kDataPlace);
}

std::string ProfileChunks::Profile() const {
  const auto end = chunks_.begin() + static_cast<std::ptrdiff_t>(count_);
  if (wrong_ || std::any_of(chunks_.begin(), end, [](const std::string& chunk) { return chunk.empty(); })) return {};
  std::string profile;
  std::for_each(chunks_.begin(), end, [&profile](const std::string& chunk) { profile += chunk; });
  return profile;
}

}  // namespace vantorium::image
