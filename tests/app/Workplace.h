#pragma once

#include "tests/app/ChildProcess.h"
#include "tests/fakes/FilesBelow.h"
#include "tests/fakes/TemporaryFolder.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace vantorium {

/// A folder with what the program needs around it: "home" (drive C:), "program" (preferences), "temp", and all else
/// that a test puts into it. The program is started in it and finds none of the user's own settings.
class Workplace {
 public:
  Workplace();

  [[nodiscard]] std::filesystem::path Path(const std::filesystem::path& name = {}) const;
  /// The path text of a file that lies outside home.
  [[nodiscard]] std::string Text(const std::filesystem::path& name) const;
  /// The same as it comes out of a project file, in which it stands with slashes.
  [[nodiscard]] std::string SourceText(const std::filesystem::path& name) const;
  std::filesystem::path Write(const std::filesystem::path& name, std::string_view bytes) const;
  [[nodiscard]] std::string Read(const std::filesystem::path& name) const;

  /// Makes a photograph, a different one for each name, with the folders it needs.
  std::filesystem::path Photograph(const std::filesystem::path& name, int width = 40, int height = 30) const;
  /// A project file with the photographs as its images, made by the program.
  void Project(const std::filesystem::path& name, const std::vector<std::string>& photographs) const;
  /// A project of one photograph many times over.
  void LargeProject(const std::filesystem::path& name, std::size_t images, int width = 40, int height = 30) const;
  /// The same with pictures so large that a run takes seconds: time to look at it and to end it.
  void SlowProject(const std::filesystem::path& name) const;
  /// Puts `text` in the place of the only `old` in a file.
  void Replace(const std::filesystem::path& name, std::string_view old, std::string_view text) const;

  [[nodiscard]] StartOptions Options(const std::vector<std::string>& arguments) const;
  [[nodiscard]] ProcessResult Run(const std::vector<std::string>& arguments) const;

 private:
  fakes::TemporaryFolder folder_;
};

using fakes::FilesBelow;

/// The paths alone, a line each.
[[nodiscard]] std::string ListingOf(const std::filesystem::path& folder);

/// Success when the folders hold the same files; else the names of those that differ.
[[nodiscard]] testing::AssertionResult SameFiles(const std::filesystem::path& one, const std::filesystem::path& other);
/// Success with exit code 0; else everything the process left behind.
[[nodiscard]] testing::AssertionResult Succeeded(const ProcessResult& result);
[[nodiscard]] testing::AssertionResult EndedWith(int exitCode, const ProcessResult& result);

}  // namespace vantorium
