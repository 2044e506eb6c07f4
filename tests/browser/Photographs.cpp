// Writes photographs that all show the same patches, one for each color profile and orientation, such as
// "DisplayP3_6.jpg", into an existing folder.
// Usage: test_photographs FOLDER
#include "env/FileOutput.h"
#include "tests/fakes/PhotographMaker.h"

#include <exception>
#include <filesystem>
#include <iostream>
#include <utility>

#include <fmt/format.h>

namespace {

using namespace vantorium;
using fakes::TestProfile;

using Color = std::array<std::uint8_t, 3>;

constexpr int kPatchSize = 40;  // pixels; whole blocks of the JPEG format
constexpr int kColumns = 3;
constexpr int kRows = 2;
constexpr int kWidth = kColumns * kPatchSize;
constexpr int kHeight = kRows * kPatchSize;
/// In sRGB, row by row. All differ, so that each turn shows.
constexpr std::array<Color, kColumns* kRows> kPatches = {
    {{200, 50, 40}, {40, 160, 70}, {50, 60, 190}, {220, 200, 60}, {120, 40, 120}, {50, 160, 180}}};
constexpr std::pair<const char*, TestProfile> kNames[] = {
    {"sRGB", TestProfile::SRGB}, {"DisplayP3", TestProfile::DisplayP3}, {"AdobeRGB", TestProfile::AdobeRGB}};

std::string Photograph(const std::string& profile, int orientation) {
  std::array<Color, kPatches.size()> colors = {};
  for (std::size_t i = 0; i < colors.size(); ++i) colors.at(i) = fakes::InProfile(profile, kPatches.at(i));
  const fakes::JpegPixels upright = [colors](int x, int y) {
    const int patch = y / kPatchSize * kColumns + x / kPatchSize;
    const Color& color = colors.at(static_cast<std::size_t>(patch));
    return std::array<std::uint8_t, 4>{color[0], color[1], color[2]};
  };
  const bool onSide = orientation > 4;
  const std::string jpeg = fakes::MakeJpeg({.width = onSide ? kHeight : kWidth,
                                            .height = onSide ? kWidth : kHeight,
                                            .horizontal = 1,
                                            .vertical = 1,
                                            .quality = 97},
                                           fakes::StoredLying(upright, orientation, kWidth, kHeight));
  return fakes::WithOrientation(fakes::WithProfile(jpeg, profile), orientation);
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc != 2) throw std::invalid_argument("Usage: test_photographs FOLDER");
  for (const auto& [name, profile] : kNames) {
    const std::string bytes = fakes::ProfileOf(profile);
    for (int orientation = 1; orientation <= 8; ++orientation) {
      const auto file = std::filesystem::path(argv[1]) / fmt::format("{}_{}.jpg", name, orientation);
      env::WriteFileWhole(file, Photograph(bytes, orientation));
    }
  }
} catch (const std::exception& failure) {
  std::cerr << failure.what() << '\n';
  return 1;
}
