#pragma once

#include "image/JPEG.h"
#include "tests/fakes/CountingEventLoop.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/dialogs/SampleDialog.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace vantorium::fakes {

/// A picture in one color, 0x00BBGGRR. Each column is brighter by `ramp` than the one before.
inline image::cDIBSection PlainPicture(std::int32_t width, std::int32_t height, std::uint32_t color, int ramp = 0) {
  image::cDIBSection picture;
  if (!picture.Create(width, height)) throw std::runtime_error("no picture");
  for (std::int32_t y = 0; y < height; ++y) {
    for (std::int32_t x = 0; x < width; ++x) {
      for (int channel = 0; channel < 3; ++channel) {
        const auto byte = (color >> (16 - 8 * channel) & 0xFF) + static_cast<unsigned>(ramp * x);
        picture.Row(y)[3 * x + channel] = static_cast<std::uint8_t>(byte);
      }
    }
  }
  return picture;
}

/// The bytes of a picture without padding, for comparisons.
inline std::string BytesOf(const image::cDIBSection& picture) {
  std::string bytes;
  for (std::int32_t y = 0; y < picture.height(); ++y) {
    bytes.append(reinterpret_cast<const char*>(picture.Row(y)), static_cast<std::size_t>(picture.width()) * 3);
  }
  return bytes;
}

class RecordingSampleBox : public ui::SampleBox {
 public:
  [[nodiscard]] image::PictureSize SizeInPixels() const override { return size; }
  [[nodiscard]] double PixelRatio() const override { return ratio; }
  void Clear() override { calls += "clear "; }
  void PaintPicture(const image::cDIBSection& picture) override {
    calls += "paint ";
    painted.push_back(BytesOf(picture));
    paintedSize = {picture.width(), picture.height()};
  }
  void HideDialog() override { calls += "hide "; }

  /// Red, green and blue in the middle of the last picture, each rounded to a multiple of 32.
  [[nodiscard]] std::string MiddleColor() const {
    if (painted.empty()) return "none";
    const auto at = static_cast<std::size_t>(paintedSize.height / 2 * paintedSize.width + paintedSize.width / 2) * 3;
    const auto rough = [&](std::size_t channel) {
      return std::to_string((static_cast<unsigned char>(painted.back()[at + channel]) + 16) / 32 * 32);
    };
    return rough(2) + " " + rough(1) + " " + rough(0);
  }

  image::PictureSize size{40, 30};
  double ratio = 1;
  std::string calls;
  std::vector<std::string> painted;
  image::PictureSize paintedSize;
};

/// A folder with sample pictures and a temporary folder.
struct SampleHarness {
  SampleHarness() { std::filesystem::create_directories(TempFile().parent_path()); }

  /// Writes a JPEG file of one color and returns its path text.
  std::string Jpeg(const std::string& name, std::uint32_t color, std::int32_t width = 64, std::int32_t height = 48,
                   int ramp = 0) {
    image::SaveJPEGImage(PlainPicture(width, height, color, ramp), folder.Path() / name, 95);
    return paths.ToText(folder.Path() / name);
  }
  [[nodiscard]] std::string Missing() const { return paths.ToText(folder.Path() / "missing.jpg"); }
  [[nodiscard]] std::string TempFolderLocation() const { return paths.ToText(folder.Path() / "temp"); }
  [[nodiscard]] std::filesystem::path TempFile() const {
    return folder.Path() / "temp" / "VANTORIUM_TEMP" / "preview_temp.jpg";
  }
  [[nodiscard]] ui::SamplePorts Ports() { return {files, boxes, loop}; }
  /// Replaces the temporary folder by a file, so that none can be created.
  void BlockTempFolder() {
    std::filesystem::remove_all(TempFile().parent_path());
    folder.Write(TempFile().parent_path().lexically_relative(folder.Path()), "");
  }

  TemporaryFolder folder;
  env::PathMap paths{{{'C', "/"}, {'Z', "/"}}};
  env::RegionalFormats formats;
  env::mFileFunctions files{paths, formats};
  RecordingMessageBox boxes;
  CountingEventLoop loop;
};

}  // namespace vantorium::fakes
