#include "ui/model/dialogs/MovedFolders.h"

#include "env/PathText.h"

#include <algorithm>

#include <fmt/format.h>

namespace vantorium::ui {

MovedFolders::MovedFolders(const std::vector<std::string>& sources, const env::mFileFunctions& files)
    : files_(files), folders_(core::FoldersOf(sources)) {
  for (const core::SourceFolder& folder : folders_) rows_.push_back({folder.folder, "", folder.sources.size(), 0});
}

void MovedFolders::EditNewFolder(const std::string& text) {
  rows_.at(chosen_).to = text;
  Count(chosen_);
}

void MovedFolders::Browse(FolderBrowser& browser) {
  const Row& row = rows_.at(chosen_);
  const auto folder = browser.BrowseForFolder("Where is " + row.from, FolderOf(row).to);
  if (folder) EditNewFolder(*folder);
}

std::string MovedFolders::CountText(const Row& row) {
  return fmt::format("{} of {}", row.found, row.images);
}

bool MovedFolders::HasNewFolder() const {
  return std::ranges::any_of(rows_, [](const Row& row) { return !row.to.empty(); });
}

bool MovedFolders::CanAccept() const {
  return std::ranges::any_of(rows_, [](const Row& row) { return row.found != 0; });
}

std::vector<core::MovedFolder> MovedFolders::Moved() const {
  std::vector<core::MovedFolder> moved;
  for (const Row& row : rows_) {
    if (row.found != 0) moved.push_back(FolderOf(row));
  }
  return moved;
}

core::MovedFolder MovedFolders::FolderOf(const Row& row) const {
  const std::string to = env::WithBackslashes(files_.Paths().ToTextIfNative(row.to));
  return {row.from, to.empty() ? to : env::WithTrailingBackslash(to)};
}

void MovedFolders::Count(std::size_t row) {
  Row& counted = rows_.at(row);
  const core::MovedFolder folder = FolderOf(counted);
  counted.found = 0;
  if (folder.to.empty()) return;
  const auto isThere = [&](const std::string& source) {
    return files_.PathExists(core::Moved(source, std::span(&folder, 1)));
  };
  counted.found = static_cast<std::size_t>(std::ranges::count_if(folders_.at(row).sources, isThere));
}

}  // namespace vantorium::ui
