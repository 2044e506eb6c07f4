#include "env/Preferences.h"

#include "env/Numbers.h"
#include "env/RuntimeFailure.h"
#include "env/TempFolder.h"
#include "env/mINIFileFunctions.h"

#include <algorithm>

namespace vantorium::env {
namespace {

constexpr const char* kFolders = "FOLDERS";
constexpr const char* kSettings = "SETTINGS";
constexpr const char* kBrowsers = "BROWSERS";

/// Runs one statement. Returns false if it throws RuntimeFailure.
template <typename Statement>
bool Succeeds(Statement statement) {
  try {
    statement();
    return true;
  } catch (const RuntimeFailure&) {
    return false;
  }
}

/// Reads one preferences file, value by value.
class Reader {
 public:
  explicit Reader(const std::filesystem::path& file) : file_(file) {}

  bool Text(const char* section, const std::string& key, std::string& value) const {
    return Succeeds([&] { value = ReadINIString(section, key, file_); });
  }
  bool Number(const char* section, const std::string& key, std::int16_t& value) const {
    return Succeeds([&] { value = ToInt16(ReadINIInteger(section, key, file_)); });
  }

 private:
  const std::filesystem::path& file_;
};

void ReadTempFolder(const Reader& reader, const std::string& appPath, const mFileFunctions& files,
                    Preferences& preferences) {
  const bool read = reader.Text(kFolders, "TempFolderLocation", preferences.TempFolderLocation);
  if (!read || preferences.TempFolderLocation.empty()) {
    preferences.TempFolderLocation = appPath;
    std::ignore = files.MakePath(TempFolderIn(appPath));
  }
  if (!reader.Number(kFolders, "TempFolderAutoClear", preferences.TempFolderAutoClear)) {
    preferences.TempFolderAutoClear = 1;
  }
}

/// A check box can only be 0 or 1; any other value becomes 1.
void ReadImagesPreview(const Reader& reader, Preferences& preferences) {
  std::int16_t& value = preferences.checkImagesPreview;
  if (!reader.Number(kSettings, "ImagesPreview", value) || value < 0 || value > 1) value = 1;
}

std::vector<Browser> ReadBrowsers(const Reader& reader) {
  std::int16_t count = 0;
  reader.Number(kBrowsers, "Count", count);
  std::vector<Browser> browsers(
      std::min<std::size_t>(static_cast<std::size_t>(std::max<std::int16_t>(count, 0)), kMostBrowsers));
  for (std::size_t n = 1; n <= browsers.size(); ++n) {
    Browser& browser = browsers[n - 1];
    reader.Text(kBrowsers, "Name" + std::to_string(n), browser.Name);
    reader.Text(kBrowsers, "Location" + std::to_string(n), browser.Location);
  }
  return browsers;
}

}  // namespace

Preferences ReadPreferences(const std::filesystem::path& file, const std::string& appPath,
                            const mFileFunctions& files) {
  const Reader reader(file);
  Preferences preferences;
  reader.Text(kFolders, "GalleryIndexFileName", preferences.GalleryIndexFileName);
  reader.Text(kFolders, "ProjectFolder", preferences.ProjectFolder);
  reader.Text(kFolders, "CreateFolder", preferences.CreateFolder);
  reader.Text(kFolders, "ImageSourceFolder", preferences.ImageSourceFolder);
  reader.Text(kFolders, "ImageDescriptionsFolder", preferences.ImageDescriptionsFolder);
  ReadTempFolder(reader, appPath, files, preferences);
  ReadImagesPreview(reader, preferences);

  const Preferences defaults;
  if (preferences.CreateFolder.empty()) preferences.CreateFolder = defaults.CreateFolder;
  if (preferences.GalleryIndexFileName.empty()) preferences.GalleryIndexFileName = defaults.GalleryIndexFileName;
  preferences.Browsers = ReadBrowsers(reader);
  return preferences;
}

std::string ProblemOfPreferences(const std::filesystem::path& file) {
  try {
    std::ignore = ReadINIFile(file);
    return {};
  } catch (const RuntimeFailure& failure) {
    return "The preferences file cannot be read.  Without it no drive letter has a folder.\r\r" + failure.Description();
  }
}

void WritePreferences(const Preferences& preferences, const std::filesystem::path& file) {
  std::error_code ignored;
  std::filesystem::create_directories(file.parent_path(), ignored);
  const auto write = [&](const char* section, const char* key, const std::string& value) {
    Succeeds([&] { WriteINIString(section, key, value, file); });
  };
  write(kFolders, "ProjectFolder", preferences.ProjectFolder);
  write(kFolders, "ImageSourceFolder", preferences.ImageSourceFolder);
  write(kFolders, "CreateFolder", preferences.CreateFolder);
  write(kFolders, "ImageDescriptionsFolder", preferences.ImageDescriptionsFolder);
  write(kFolders, "TempFolderLocation", preferences.TempFolderLocation);
  write(kFolders, "TempFolderAutoClear", std::to_string(preferences.TempFolderAutoClear));
  write(kFolders, "GalleryIndexFileName", preferences.GalleryIndexFileName);
  write(kSettings, "ImagesPreview", std::to_string(preferences.checkImagesPreview));
}

void WriteBrowsers(const std::vector<Browser>& browsers, const std::filesystem::path& file) {
  const std::size_t count = std::min(browsers.size(), kMostBrowsers);
  WriteINIString(kBrowsers, "Count", std::to_string(count), file);
  for (std::size_t n = 1; n <= count; ++n) {
    WriteINIString(kBrowsers, "Name" + std::to_string(n), browsers[n - 1].Name, file);
    WriteINIString(kBrowsers, "Location" + std::to_string(n), browsers[n - 1].Location, file);
  }
}

}  // namespace vantorium::env
