#pragma once

#include "env/mFileFunctions.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace vantorium::env {

/// A browser that the user listed for viewing galleries: its name in the menus and the path of its executable.
struct Browser {
  std::string Name;
  std::string Location;

  bool operator==(const Browser&) const = default;
};

/// The settings that the program keeps between runs. Folders are path text.
struct Preferences {
  std::string GalleryIndexFileName = "index.htm";
  std::string ProjectFolder;                   ///< of the last project file
  std::string CreateFolder = "C:\\gallery\\";  ///< destination of a local gallery
  std::string ImageSourceFolder;               ///< where images were last picked
  std::string ImageDescriptionsFolder;         ///< last folder of the image descriptions
  std::string TempFolderLocation;              ///< parent of the temporary folder
  std::int16_t TempFolderAutoClear = 1;        ///< 1: the temporary folder is cleared on exit
  std::int16_t checkImagesPreview = 1;         ///< 1: the image list shows a preview
  std::vector<Browser> Browsers;               ///< at most kMostBrowsers

  bool operator==(const Preferences&) const = default;
};

inline constexpr std::size_t kMostBrowsers = 8;

/// Reads the preferences `file` at start-up. Reports no failure: a value that cannot be read gets its default, and
/// without a file every value does. If the file does not name the parent of the temporary folder, the parent is the
/// program's folder `appPath` (path text without a trailing backslash), and only then is the temporary folder created
/// here.
[[nodiscard]] Preferences ReadPreferences(const std::filesystem::path& file, const std::string& appPath,
                                          const mFileFunctions& files);

/// Returns what the user must know if the preferences file exists but cannot be read, because the drive letters then
/// have no meaning (ReadPathMap); empty otherwise.
[[nodiscard]] std::string ProblemOfPreferences(const std::filesystem::path& file);

/// Writes all but the browsers, on exit, value by value; creates the file's folder if it is missing. Skips a value that
/// cannot be written.
void WritePreferences(const Preferences& preferences, const std::filesystem::path& file);

/// Writes the first kMostBrowsers of `browsers`. Further entries in the file stay there: only the count decides which
/// are read. Throws RuntimeFailure Preferences at the first value that cannot be written.
void WriteBrowsers(const std::vector<Browser>& browsers, const std::filesystem::path& file);

}  // namespace vantorium::env
