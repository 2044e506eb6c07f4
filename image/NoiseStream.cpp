#include "image/NoiseStream.h"

namespace vantorium::image {
namespace {

// The output step of SplitMix64: Steele, Lea, Flood, "Fast splittable pseudorandom number generators", 2014.
std::uint64_t Mixed(std::uint64_t key) {
  key += 0x9E3779B97F4A7C15U;
  key = (key ^ (key >> 30)) * 0xBF58476D1CE4E5B9U;
  key = (key ^ (key >> 27)) * 0x94D049BB133111EBU;
  return key ^ (key >> 31);
}

}  // namespace

NoiseStream::NoiseStream(std::uint64_t seed, std::uint64_t picture, std::int32_t firstRow)
    : key_(Mixed(Mixed(seed) ^ picture)), firstRow_(firstRow) {}

void NoiseStream::NextPass() {
  key_ = Mixed(key_);
}

NoiseRow NoiseStream::Row(std::int32_t row) const {
  return NoiseRow(Mixed(key_ ^ static_cast<std::uint32_t>(firstRow_ + row)));
}

}  // namespace vantorium::image
