#pragma once

#include "env/mFileFunctions.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace vantorium {

/// A browser that the user lists to view galleries in: its name in the menus and the path of its executable.
struct Browser {
  std::string Name;
  std::string Location;

  bool operator==(const Browser&) const = default;
};

/// What the program remembers from one run to the next. Folders are path text.
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

/// Reads the preferences `file` at start-up. No failure is reported here: what cannot be read has its default, and
/// without a file that is everything. The temporary folder belongs into the program's folder `appPath` (path text, no
/// backslash at its end) unless the file names another place; only then is it made here.
[[nodiscard]] Preferences ReadPreferences(const std::filesystem::path& file, const std::string& appPath,
                                          const mFileFunctions& files);

/// What the user must hear of a preferences file that is there and cannot be read, as it takes the meaning of the drive
/// letters with it (ReadPathMap); empty for any other.
[[nodiscard]] std::string ProblemOfPreferences(const std::filesystem::path& file);

/// Writes all but the browsers, on exit, one value after the other; the file's folder is made when it is missing. A
/// value that cannot be written is passed over.
void WritePreferences(const Preferences& preferences, const std::filesystem::path& file);

/// Writes the first kMostBrowsers of `browsers`. Entries of the file beyond them stay there: only the count governs.
/// Throws RuntimeFailure Preferences at the first value that cannot be written.
void WriteBrowsers(const std::vector<Browser>& browsers, const std::filesystem::path& file);

}  // namespace vantorium
