#include "image/jpeg/ScanHeaders.h"

#include "image/jpeg/Markers.h"

#include <algorithm>
#include <utility>

namespace vantorium::image::jpeg {
namespace {

// Encoders write about ten.
constexpr int kMostScans = 100;
constexpr unsigned kMostLowest = 13;

bool IsForApplications(int marker) {
  return (marker >= kFirstApplication && marker <= kLastApplication) || marker == kComment;
}

// Returns the content of the segment whose marker was read.
std::optional<std::vector<std::uint8_t>> ReadSegment(ScanData& data) {
  const int high = data.NextByte();
  const int low = data.NextByte();
  if (high < 0 || low < 0 || high * 256 + low < 2) return {};
  std::vector<std::uint8_t> segment(static_cast<std::size_t>(high) * 256 + static_cast<std::size_t>(low) - 2);
  for (std::uint8_t& byte : segment) {
    const int next = data.NextByte();
    if (next < 0) return {};
    byte = static_cast<std::uint8_t>(next);
  }
  return segment;
}

}  // namespace

ScanHeaders::ScanHeaders(const jpeg_decompress_struct& header) : tables_(header) {
  for (int i = 0; i < header.num_components; ++i) identifiers_.push_back(header.comp_info[i].component_id);
  missing_.resize(identifiers_.size());
  for (MissingBits& missing : missing_) missing.fill(kUnknown);

  ScanHeader scan = {{},
                     static_cast<unsigned>(header.Ss),
                     static_cast<unsigned>(header.Se),
                     static_cast<unsigned>(header.Ah),
                     static_cast<unsigned>(header.Al)};
  for (int i = 0; i < header.comps_in_scan; ++i) {
    const auto* component = header.cur_comp_info[i];
    scan.parts.push_back({static_cast<std::size_t>(component->component_index),
                          static_cast<unsigned>(component->dc_tbl_no), static_cast<unsigned>(component->ac_tbl_no)});
  }
  if (!Accept(std::move(scan))) scan_.reset();
}

bool ScanHeaders::ReadNext(int marker, ScanData& data) {
  scan_.reset();
  while (marker != kEndOfImage) {
    const auto segment = ReadSegment(data);
    if (!segment) return false;
    if (marker == kStartOfScan) return TakeScan(*segment);
    if (marker == kHuffmanTables ? !tables_.Take(*segment) : !IsForApplications(marker)) return false;
    if (data.NextByte() != kMarkerPrefix) return false;
    marker = data.NextByte();
  }
  return true;
}

bool ScanHeaders::TakeScan(const std::vector<std::uint8_t>& segment) {
  if (segment.empty() || segment.size() != std::size_t{4} + 2 * segment[0]) return false;
  const std::uint8_t* const end = segment.data() + segment.size() - 3;
  ScanHeader scan = {{}, end[0], end[1], end[2] / 16U, end[2] % 16U};
  for (const std::uint8_t* at = segment.data() + 1; at != end; at += 2) {
    const auto found = std::ranges::find(identifiers_, int{at[0]});
    if (found == identifiers_.end()) return false;
    scan.parts.push_back({static_cast<std::size_t>(found - identifiers_.begin()), at[1] / 16U, at[1] % 16U});
  }
  return Accept(std::move(scan));
}

bool ScanHeaders::Continues(const ScanHeader& scan, const MissingBits& missing) const {
  if (scan.first > 0 && missing[0] == kUnknown) return false;
  const int expected = scan.Refines() ? static_cast<int>(scan.knownFrom) : kUnknown;
  return std::all_of(missing.begin() + scan.first, missing.begin() + scan.last + 1,
                     [&](int bits) { return bits == expected; });
}

bool ScanHeaders::Accept(ScanHeader scan) {
  const bool isDC = scan.first == 0;
  if (isDC ? scan.last != 0 : scan.parts.size() != 1 || scan.last < scan.first || scan.last > 63) return false;
  if (scan.lowest > kMostLowest || (scan.Refines() && scan.lowest + 1 != scan.knownFrom)) return false;
  if (scan.parts.empty() || ++scans_ > kMostScans) return false;
  for (std::size_t i = 0; i < scan.parts.size(); ++i) {
    if (i > 0 && scan.parts[i].component <= scan.parts[i - 1].component) return false;
    MissingBits& missing = missing_[scan.parts[i].component];
    if (!Continues(scan, missing)) return false;
    std::fill(missing.begin() + scan.first, missing.begin() + scan.last + 1, static_cast<int>(scan.lowest));
  }
  scan_ = std::move(scan);
  return true;
}

bool ScanHeaders::AreComplete() const {
  return std::ranges::all_of(missing_, [](const MissingBits& missing) {
    return std::ranges::all_of(missing, [](int bits) { return bits == 0; });
  });
}

}  // namespace vantorium::image::jpeg
