#pragma once

#include "core/generation/RunState.h"
#include "env/CivilTime.h"
#include "env/Text.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace vantorium::tests {

/// Joins the lines of a page, each ended by CR LF.
inline std::string Lines(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const std::string_view line : lines) text.append(line).append("\r\n");
  return text;
}

inline bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

inline std::size_t CountOf(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (auto at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

/// The first line of `page` that begins with `start`, without CR LF; "(none)" if there is no such line.
inline std::string LineStartingWith(std::string_view page, std::string_view start) {
  for (std::size_t at = 0; at < page.size();) {
    const std::size_t end = page.find("\r\n", at);
    if (end == std::string_view::npos) break;
    const std::string_view line = page.substr(at, end - at);
    if (line.starts_with(start)) return std::string(line);
    at = end + 2;
  }
  return "(none)";
}

/// The state of a run before it builds pages. Tests set the project, add images and call Prepare.
class PageTest : public ::testing::Test {
 protected:
  PageTest() {
    project.textGalleryTitle = "Holidays";
    run.GalleryCreationTime = {.year = 2024, .month = 2, .day = 29, .hour = 13, .minute = 5, .second = 9};
  }

  void AddImage(const std::string& name, const std::string& imageDescription = "",
                const std::string& thumbnailDescription = "") {
    core::ImageEntry entry;
    entry.ImageName = name;
    entry.SourcePath = "C:\\Photos\\" + name + ".JPG";
    entry.ImageDescription = imageDescription;
    entry.ThumbnailDescription = thumbnailDescription;
    generation::ImageRunInfo info;
    info.Path = entry.SourcePath;
    info.FileName = name + ".JPG";
    info.FileTime = env::FileTimeOfUnixTime(1'583'020'800, 0);  // 2020-03-01 00:00 UTC
    images.Insert(images.Count() + 1, std::move(entry));
    const auto number = static_cast<std::int32_t>(images.Count());
    info.Width = 400 + number;
    info.Height = 300 + number;
    info.ThumbWidth = 60 + number;
    info.ThumbHeight = 45 + number;
    run.RunInfo.push_back(info);
  }

  void AddImages(int count) {
    for (int number = 1; number <= count; ++number) AddImage("img" + std::to_string(number));
  }

  /// Computes what a run computes before it builds pages.
  void Prepare(generation::GenerationMode mode = generation::GenerationMode::Create) {
    run.mode = mode;
    run.ImageUrlPrefix = mode == generation::GenerationMode::Preview ? "images/" : "Images/";
    run.ThumbUrlPrefix = mode == generation::GenerationMode::Preview ? "thumbs/" : "Thumbs/";
    run.ImageCount = static_cast<std::int32_t>(images.Count());
    run.ThumbnailPageCount = vantorium::core::ThumbnailPageCount(project, run.ImageCount);
    for (const generation::ImageRunInfo& info : run.RunInfo) {
      run.MaxImageWidth = std::max(run.MaxImageWidth, info.Width);
      run.MaxImageHeight = std::max(run.MaxImageHeight, info.Height);
      run.MaxThumbWidth = std::max(run.MaxThumbWidth, info.ThumbWidth);
      run.MaxThumbHeight = std::max(run.MaxThumbHeight, info.ThumbHeight);
    }
  }

  void SetGrid(const core::Digits& rows, const core::Digits& columns) {
    project.textThumbnailsTableRows = rows;
    project.textThumbnailsTableColumns = columns;
  }

  core::GalleryProject project;
  core::ImageList images;
  env::PathMap paths{{{'C', "/home/anna"}}};
  env::RegionalFormats formats{"de_DE"};
  env::mFileFunctions files{paths, formats};
  generation::RunState run{.project = project, .images = images, .files = files, .formats = formats};
};

}  // namespace vantorium::tests
