#include "env/Preferences.h"
#include "env/mINIFileFunctions.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/FolderNames.h"
#include "tests/fakes/TemporaryFolder.h"

#include <ostream>

namespace vantorium::env {

static std::ostream& operator<<(std::ostream& stream, const Browser& browser) {
  return stream << browser.Name << " at " << browser.Location;
}

static std::ostream& operator<<(std::ostream& stream, const Preferences& preferences) {
  return stream << testing::PrintToString(std::vector<std::string>{
                       preferences.GalleryIndexFileName, preferences.ProjectFolder, preferences.CreateFolder,
                       preferences.ImageSourceFolder, preferences.ImageDescriptionsFolder,
                       preferences.TempFolderLocation, std::to_string(preferences.TempFolderAutoClear),
                       std::to_string(preferences.checkImagesPreview)})
                << testing::PrintToString(preferences.Browsers);
}

namespace {

namespace fs = std::filesystem;

class PreferencesTest : public testing::Test {
 protected:
  [[nodiscard]] Preferences Read() const { return ReadPreferences(file, "C:\\program", files); }
  [[nodiscard]] Preferences ReadText(const std::string& text) const {
    folder.Write("vantorium.ini", text);
    return Read();
  }
  [[nodiscard]] static Preferences Defaults() {
    Preferences preferences;
    preferences.TempFolderLocation = "C:\\program";
    return preferences;
  }

  fakes::TemporaryFolder folder;
  fs::path file = folder.Path() / "vantorium.ini";
  PathMap paths{{{'C', folder.Path().string()}}};
  RegionalFormats formats{"en_US"};
  mFileFunctions files{paths, formats};
};

Preferences Everything() {
  return {.GalleryIndexFileName = "start.htm",
          .ProjectFolder = "C:\\projects\\",
          .CreateFolder = "D:\\out\\",
          .ImageSourceFolder = "C:\\photos",
          .ImageDescriptionsFolder = "C:\\texts \"quoted\"",
          .TempFolderLocation = "C:\\temp",
          .TempFolderAutoClear = 0,
          .checkImagesPreview = 0,
          .Browsers = {}};
}

TEST_F(PreferencesTest, WithoutAFileEveryValueHasItsDefault) {
  const Preferences preferences = Read();
  EXPECT_EQ(preferences.GalleryIndexFileName, "index.htm");
  EXPECT_EQ(preferences.CreateFolder, "C:\\gallery\\");
  EXPECT_EQ(preferences.TempFolderAutoClear, 1);
  EXPECT_EQ(preferences.checkImagesPreview, 1);
  EXPECT_EQ(preferences, Defaults());
}

TEST_F(PreferencesTest, AnUnreadableOrInvalidFileGivesTheDefaults) {
  for (const std::string& text : {std::string(), std::string("\0\xFF\n=", 4), std::string("[FOLDERS]"),
                                  std::string(100'000, '\n'), std::string("[FOLDERS]\n[SETTINGS]\n[BROWSERS]\n")}) {
    EXPECT_EQ(ReadText(text), Defaults());
  }
  fs::remove(file);
  fs::create_directory(file);
  EXPECT_EQ(Read(), Defaults());
}

TEST_F(PreferencesTest, AllValuesAreReadBack) {
  WritePreferences(Everything(), file);
  EXPECT_EQ(Read(), Everything());
}

TEST_F(PreferencesTest, ValuesAreWrittenInAFixedOrder) {
  WritePreferences(Everything(), file);
  EXPECT_EQ(folder.Read("vantorium.ini"),
            "[FOLDERS]\r\n"
            "ProjectFolder=\"C:\\projects\\\"\r\n"
            "ImageSourceFolder=\"C:\\photos\"\r\n"
            "CreateFolder=\"D:\\out\\\"\r\n"
            "ImageDescriptionsFolder=\"C:\\texts \"quoted\"\"\r\n"
            "TempFolderLocation=\"C:\\temp\"\r\n"
            "TempFolderAutoClear=\"0\"\r\n"
            "GalleryIndexFileName=\"start.htm\"\r\n"
            "[SETTINGS]\r\n"
            "ImagesPreview=\"0\"\r\n");
}

TEST_F(PreferencesTest, WritingLeavesBrowsersDrivesAndCommentsAlone) {
  const std::string own = "; mine\n[DRIVES]\nC=\"/home/me\"\n[BROWSERS]\nCount=\"1\"\nName1=\"x\"\n";
  folder.Write("vantorium.ini", own);
  Preferences preferences = Everything();
  preferences.Browsers = {{"y", "z"}};
  WritePreferences(preferences, file);
  EXPECT_TRUE(folder.Read("vantorium.ini").starts_with(own + "[FOLDERS]\n"));
}

TEST_F(PreferencesTest, EmptyTextsBecomeDefaultsAtTheNextStart) {
  Preferences preferences = Everything();
  preferences.CreateFolder.clear();
  preferences.GalleryIndexFileName.clear();
  preferences.TempFolderLocation.clear();
  preferences.ProjectFolder.clear();
  WritePreferences(preferences, file);
  const Preferences read = Read();
  EXPECT_EQ(read.CreateFolder, "C:\\gallery\\");
  EXPECT_EQ(read.GalleryIndexFileName, "index.htm");
  EXPECT_EQ(read.TempFolderLocation, "C:\\program");
  EXPECT_EQ(read.ProjectFolder, "");
}

TEST_F(PreferencesTest, TheTemporaryFolderIsCreatedOnlyInTheProgramFolder) {
  std::ignore = ReadText("[FOLDERS]\nTempFolderLocation=\"C:\\temp\"\n");
  EXPECT_EQ(fakes::NamesIn(folder.Path()), std::vector<std::string>{"vantorium.ini"});
  std::ignore = ReadText("[FOLDERS]\nTempFolderLocation=\"\"\n");
  EXPECT_TRUE(fs::is_directory(folder.Path() / "program/VANTORIUM_TEMP"));
}

TEST_F(PreferencesTest, ASwitchThatCannotBeReadIsOn) {
  for (const char* bad : {"\"\"", "\"x\"", "\"70000\"", "\"99999999999\""}) {
    const Preferences read =
        ReadText(std::string("[FOLDERS]\nTempFolderAutoClear=") + bad + "\n[SETTINGS]\nImagesPreview=" + bad + "\n");
    EXPECT_EQ(read.TempFolderAutoClear, 1) << bad;
    EXPECT_EQ(read.checkImagesPreview, 1) << bad;
  }
}

TEST_F(PreferencesTest, ACheckBoxTakesOnlyItsTwoStates) {
  for (const char* bad : {"-1", "2", "5", "32767"}) {
    EXPECT_EQ(ReadText(std::string("[SETTINGS]\nImagesPreview=\"") + bad + "\"\n").checkImagesPreview, 1) << bad;
  }
  EXPECT_EQ(ReadText("[SETTINGS]\nImagesPreview=\"0\"\n").checkImagesPreview, 0);
  EXPECT_EQ(ReadText("[FOLDERS]\nTempFolderAutoClear=5\n").TempFolderAutoClear, 5);
}

std::string BrowserSection(const std::string& count, int entries) {
  std::string text = "[BROWSERS]\r\nCount=\"" + count + "\"\r\n";
  for (int n = 1; n <= entries; ++n) {
    text += "Name" + std::to_string(n) + "=\"name " + std::to_string(n) + "\"\r\n";
    text += "Location" + std::to_string(n) + "=\"C:\\b" + std::to_string(n) + ".exe\"\r\n";
  }
  return text;
}

TEST_F(PreferencesTest, TheCountLimitsTheBrowsersToAtMostEight) {
  const std::pair<const char*, std::size_t> cases[] = {{"0", 0},     {"1", 1},  {"8", 8},      {"9", 8}, {"12", 8},
                                                       {"32767", 8}, {"-1", 0}, {"-32768", 0}, {"x", 0}, {"", 0}};
  for (const auto& [count, expected] : cases) {
    const auto browsers = ReadText(BrowserSection(count, 12)).Browsers;
    ASSERT_EQ(browsers.size(), expected) << count;
    for (std::size_t n = 1; n <= expected; ++n) {
      const std::string number = std::to_string(n);
      EXPECT_EQ(browsers[n - 1], (Browser{"name " + number, "C:\\b" + number + ".exe"})) << count;
    }
  }
}

TEST_F(PreferencesTest, ABrowserWithoutLinesHasAnEmptyNameAndLocation) {
  const auto browsers = ReadText("[BROWSERS]\nCount=2\nLocation1=\"C:\\a.exe\"\n").Browsers;
  EXPECT_EQ(browsers, (std::vector<Browser>{{"", "C:\\a.exe"}, {"", ""}}));
}

TEST_F(PreferencesTest, EntriesAboveTheCountStayInTheFile) {
  folder.Write("vantorium.ini", BrowserSection("12", 12));
  WriteBrowsers({{"one", "C:\\1.exe"}}, file);
  EXPECT_EQ(Read().Browsers, (std::vector<Browser>{{"one", "C:\\1.exe"}}));
  EXPECT_EQ(ReadINIString("BROWSERS", "Name2", file), "name 2");
  EXPECT_EQ(ReadINIString("BROWSERS", "Name12", file), "name 12");
}

TEST_F(PreferencesTest, AtMostEightBrowsersAreWritten) {
  WriteBrowsers(std::vector<Browser>(12, {"x", "y"}), file);
  EXPECT_EQ(ReadINIString("BROWSERS", "Count", file), "8");
  EXPECT_EQ(Read().Browsers.size(), 8U);
  EXPECT_EQ(folder.Read("vantorium.ini").find("Name9"), std::string::npos);
  WriteBrowsers({}, file);
  EXPECT_TRUE(Read().Browsers.empty());
}

TEST_F(PreferencesTest, AValueThatCannotBeWrittenIsSkipped) {
  Preferences preferences = Everything();
  preferences.ProjectFolder = "two\nlines";
  preferences.CreateFolder = "a\rb";
  WritePreferences(preferences, file);
  const Preferences read = Read();
  EXPECT_EQ(read.ProjectFolder, "");
  EXPECT_EQ(read.CreateFolder, "C:\\gallery\\");
  EXPECT_EQ(read.GalleryIndexFileName, "start.htm");
}

TEST_F(PreferencesTest, AReadOnlyFileFailsForTheBrowsersAndIsIgnoredAtExit) {
  folder.Write("vantorium.ini", "[FOLDERS]\n");
  fs::permissions(file, fs::perms(0444));
  WritePreferences(Everything(), file);
  EXPECT_EQ(fakes::FailureOf([&] { WriteBrowsers({}, file); }), FailureKind::Preferences);
  EXPECT_EQ(folder.Read("vantorium.ini"), "[FOLDERS]\n");
}

TEST_F(PreferencesTest, TheFoldersOfTheFileAreCreatedAtExit) {
  const auto below = folder.Path() / "a/b/vantorium.ini";
  WritePreferences(Everything(), below);
  EXPECT_EQ(ReadPreferences(below, "C:\\program", files), Everything());
  WritePreferences(Everything(), folder.Write("file", "x") / "vantorium.ini");
}

}  // namespace
}  // namespace vantorium::env
