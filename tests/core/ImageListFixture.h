#pragma once

#include "core/ImageListOperations.h"
#include "tests/fakes/RecordingImageListDisplay.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/TemporaryFolder.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vantorium::core {

/// A project and its image list. Drive C: is a temporary folder.
class ImageListFixture : public testing::Test {
 protected:
  using Calls = std::vector<std::string>;
  using Names = std::vector<std::string>;

  std::filesystem::path WriteFile(const std::string& name, std::size_t size = 3) {
    return folder.Write(name, std::string(size, 'x'));
  }

  /// Writes a file for each name and adds it as an image.
  void Fill(const Names& names) {
    for (const std::string& name : names) {
      WriteFile(name);
      ASSERT_TRUE(Add(images.Count() + 1, "C:\\" + name, name));
    }
    project.IsModified = false;
  }

  bool Add(std::size_t index, const std::string& path, const std::string& name) {
    return operations.AddImage(index, path, name, "i " + name, "t " + name);
  }

  void Select(const Names& names) {
    for (const std::string& name : names) images.Select(images.PositionOf(name).value());
  }

  Names ListNames() const {
    Names names;
    for (std::size_t i = 1; i <= images.Count(); ++i) names.push_back(images.Entry(i).ImageName);
    return names;
  }

  Names SelectedNames() const {
    Names names;
    for (std::size_t i = 1; i <= images.Count(); ++i) {
      if (images.IsSelected(i)) names.push_back(images.Entry(i).ImageName);
    }
    return names;
  }

  void ExpectOneBox(env::BoxKind kind, env::BoxButtons buttons, const std::string& title, const std::string& text) {
    ASSERT_EQ(boxes.boxes.size(), 1U);
    EXPECT_EQ(boxes.boxes[0].kind, kind);
    EXPECT_EQ(boxes.boxes[0].buttons, buttons);
    EXPECT_EQ(boxes.boxes[0].title, title);
    EXPECT_EQ(boxes.boxes[0].text, text);
  }

  void ExpectFileErrorBox(const std::string& path) {
    ExpectOneBox(env::BoxKind::Critical, env::BoxButtons::Ok, "File Error",
                 "An Error occurred trying to read the image file \"" + path +
                     "\":\r\rFile not found\r\rLoading Process cancelled.");
  }

  fakes::TemporaryFolder folder;
  env::PathMap paths{{{'C', folder.Path().string()}}};
  env::RegionalFormats formats{"en_US"};
  env::mFileFunctions files{paths, formats};
  fakes::RecordingMessageBox boxes;
  fakes::RecordingImageListDisplay display;
  Project project;
  ImageList& images = project.images;
  ImageListOperations operations{project, files, boxes, display};
};

}  // namespace vantorium::core
