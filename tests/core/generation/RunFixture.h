#pragma once

#include "core/Project.h"
#include "core/generation/GenerateGallery.h"
#include "env/FileOutput.h"
#include "image/JPEG.h"
#include "image/PangoTextRaster.h"
#include "image/cDIBSection.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/RunFakes.h"
#include "tests/fakes/TemporaryFolder.h"

#include <algorithm>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace vantorium::generation {

/// The bytes of a JPEG file of one color.
inline std::string PlainJpeg(std::int32_t width, std::int32_t height, std::uint8_t level = 120) {
  image::cDIBSection picture;
  EXPECT_TRUE(picture.Create(width, height));
  const auto size = static_cast<std::size_t>(picture.BytesPerScanLine()) * static_cast<std::size_t>(height);
  std::fill_n(picture.DIBSectionBitsPtr(), size, level);
  return image::EncodeJPEG(picture, 90);
}

/// A project in a temporary folder, which is drive T:, and recording fakes of what a run needs. Photographs are in
/// T:\photos; the gallery goes to T:\out.
class RunFixture : public ::testing::Test {
 protected:
  RunFixture() { project.ProjectFolder = "T:\\project\\"; }

  /// Adds an image of that name, with the source T:\photos\<name>.jpg.
  void AddPhotograph(const std::string& name, std::int32_t width = 40, std::int32_t height = 30) {
    folder.Write("photos/" + name + ".jpg", PlainJpeg(width, height));
    AddEntry(name, "T:\\photos\\" + name + ".jpg");
  }

  void AddEntry(const std::string& name, const std::string& source) {
    core::ImageEntry entry;
    entry.ImageName = name;
    entry.SourcePath = source;
    project.images.Insert(project.images.Count() + 1, entry);
  }

  [[nodiscard]] static RunOrder OrderToCreate() { return OrderFor(GenerationMode::Create, "T:\\out\\"); }
  [[nodiscard]] static RunOrder OrderToPreview() { return OrderFor(GenerationMode::Preview, "T:\\temp\\"); }
  [[nodiscard]] static RunOrder OrderFor(GenerationMode mode, const std::string& folder) {
    RunOrder order;
    order.OutputFolder = folder;
    order.IndexFileName = "index.htm";
    order.Mode = mode;
    return order;
  }

  /// The last message box, with which a failed run ends.
  [[nodiscard]] std::string LastBox() const {
    return boxes.boxes.empty() ? "" : boxes.boxes.back().title + ": " + boxes.boxes.back().text;
  }
  RunEnd Run(const RunOrder& order) { return GenerateGallery(project, order, environment); }

  /// The files in a folder of drive T: and its subfolders, by path relative to that folder.
  [[nodiscard]] std::set<std::string> FilesIn(const std::string& name) const {
    std::set<std::string> found;
    const auto top = folder.Path() / name;
    if (!std::filesystem::exists(top)) return found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(top)) {
      if (entry.is_regular_file()) found.insert(entry.path().lexically_relative(top).string());
    }
    return found;
  }

  /// Presses the progress window's cancel button in turn `turn` of the event loop.
  void CancelInTurn(int turn) {
    loop.onTurn = [this, turn](int now) {
      if (now != turn) return;
      host.openWindow->SetIsCancelled(true);
      std::ignore = cancel.CheckForCancel(*host.openWindow);
    };
  }

  fakes::TemporaryFolder folder;
  env::PathMap paths{{{'T', folder.Path().string()}}};
  env::RegionalFormats formats{"en_US"};
  env::mFileFunctions files{paths, formats};
  core::Project project;

  fakes::Journal journal;
  fakes::RecordingRunHost host{journal};
  fakes::RecordingMessageBox boxes;
  fakes::CountingEventLoop loop;
  fakes::FixedClock clock;
  fakes::JournalingShell shell{journal};
  CancelCheck cancel{boxes};
  env::Screen screen;
  image::PangoTextRaster texts;
  RunEnvironment environment{{paths, formats, files, boxes, loop, shell, clock, screen, texts}, host, cancel};
};

}  // namespace vantorium::generation
