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

namespace vantorium::batch {

/// A folder with what the program needs: "home" (drive C:), "program" (preferences), "temp", and whatever a test adds.
/// The program starts in it and finds no settings of the user.
class Workplace {
 public:
  Workplace();

  [[nodiscard]] std::filesystem::path Path(const std::filesystem::path& name = {}) const;
  /// The path text of a file outside home.
  [[nodiscard]] std::string Text(const std::filesystem::path& name) const;
  /// The same with slashes, as the program reads it from a project file.
  [[nodiscard]] std::string SourceText(const std::filesystem::path& name) const;
  std::filesystem::path Write(const std::filesystem::path& name, std::string_view bytes) const;
  [[nodiscard]] std::string Read(const std::filesystem::path& name) const;

  /// Writes a photograph, different for each name, and creates its folders.
  std::filesystem::path Photograph(const std::filesystem::path& name, int width = 40, int height = 30) const;
  /// Writes the photographs, and makes a project of them with the `new` command.
  void Project(const std::filesystem::path& name, const std::vector<std::string>& photographs) const;
  /// Makes a project that has one photograph many times.
  void LargeProject(const std::filesystem::path& name, std::size_t images, int width = 40, int height = 30) const;
  /// The same with pictures so large that a run takes long enough to be observed and interrupted.
  void SlowProject(const std::filesystem::path& name) const;
  /// Replaces the only occurrence of `old` in a file with `text`.
  void Replace(const std::filesystem::path& name, std::string_view old, std::string_view text) const;

  [[nodiscard]] StartOptions Options(const std::vector<std::string>& arguments) const;
  [[nodiscard]] ProcessResult Run(const std::vector<std::string>& arguments) const;

 private:
  fakes::TemporaryFolder folder_;
};

using fakes::FilesBelow;

/// The relative paths of all files in `folder`, one per line.
[[nodiscard]] std::string ListingOf(const std::filesystem::path& folder);

/// Success if the folders hold the same files; otherwise a failure with the names of those that differ.
[[nodiscard]] testing::AssertionResult SameFiles(const std::filesystem::path& one, const std::filesystem::path& other);
/// Success for exit code 0; otherwise a failure with the exit code and the output.
[[nodiscard]] testing::AssertionResult Succeeded(const ProcessResult& result);
[[nodiscard]] testing::AssertionResult EndedWith(int exitCode, const ProcessResult& result);

}  // namespace vantorium::batch
