#include "env/mINIFileFunctions.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/FaultInjection.h"
#include "tests/fakes/FolderNames.h"
#include "tests/fakes/TemporaryFolder.h"

namespace vantorium::env {
namespace {

namespace fs = std::filesystem;
using fakes::FailureOf;

class mINIFileFunctionsTest : public testing::Test {
 protected:
  [[nodiscard]] std::optional<FailureKind> FailureOfReading(const char* key) const {
    return FailureOf([&] { std::ignore = ReadINIString("A", key, file); });
  }
  [[nodiscard]] std::optional<FailureKind> FailureOfReadingInteger(const char* key) const {
    return FailureOf([&] { std::ignore = ReadINIInteger("A", key, file); });
  }
  [[nodiscard]] std::optional<FailureKind> FailureOfWriting(std::string_view section, std::string_view key,
                                                            std::string_view value) const {
    return FailureOf([&] { WriteINIString(section, key, value, file); });
  }

  fakes::TemporaryFolder folder;
  fs::path file = folder.Path() / "vantorium.ini";
};

TEST_F(mINIFileFunctionsTest, AMissingKeyIsAPreferencesFailureAndAMissingFileIsNotFound) {
  EXPECT_EQ(FailureOfReading("x"), FailureKind::FileNotFound);
  folder.Write("vantorium.ini", "[A]\r\ny=1\r\n");
  EXPECT_EQ(FailureOfReading("x"), FailureKind::Preferences);
  EXPECT_EQ(ReadINIString("a", "Y", file), "1");
}

TEST_F(mINIFileFunctionsTest, AnEmptyValueIsNotAnInteger) {
  EXPECT_EQ(FailureOfReadingInteger("x"), FailureKind::Preferences);
  folder.Write("vantorium.ini", "[A]\r\ny=1\r\n");
  EXPECT_EQ(FailureOfReadingInteger("x"), FailureKind::Preferences);
}

TEST_F(mINIFileFunctionsTest, AnIntegerIsConvertedAndRounded) {
  folder.Write("vantorium.ini", "[A]\na=\"12\"\nb=-3\nc=\" 2.5 \"\nd=\nf=\"x\"\ne=\"2147483648\"\n");
  EXPECT_EQ(ReadINIInteger("A", "a", file), 12);
  EXPECT_EQ(ReadINIInteger("A", "b", file), -3);
  EXPECT_EQ(ReadINIInteger("A", "c", file), 2);
  EXPECT_EQ(FailureOfReadingInteger("d"), FailureKind::TypeMismatch);
  EXPECT_EQ(FailureOfReadingInteger("f"), FailureKind::TypeMismatch);
  EXPECT_EQ(FailureOfReadingInteger("e"), FailureKind::Overflow);
}

TEST_F(mINIFileFunctionsTest, ValuesAreWrittenInDoubleQuotationMarks) {
  WriteINIString("FOLDERS", "CreateFolder", "C:\\gallery\\", file);
  WriteINIString("SETTINGS", "ImagesPreview", "1", file);
  WriteINIString("FOLDERS", "ProjectFolder", "C:\\projects", file);
  WriteINIString("folders", "CREATEFOLDER", "D:\\", file);
  EXPECT_EQ(folder.Read("vantorium.ini"),
            "[FOLDERS]\r\nCreateFolder=\"D:\\\"\r\nProjectFolder=\"C:\\projects\"\r\n"
            "[SETTINGS]\r\nImagesPreview=\"1\"\r\n");
  EXPECT_EQ(ReadINIString("FOLDERS", "CreateFolder", file), "D:\\");
  EXPECT_EQ(fakes::NamesIn(folder.Path()), std::vector<std::string>{"vantorium.ini"});
}

TEST_F(mINIFileFunctionsTest, ATextThatWouldBreakTheFileIsRefused) {
  const std::string before = "[A]\r\nx=\"1\"\r\n";
  folder.Write("vantorium.ini", before);
  for (const std::string_view bad : {std::string_view("a\rb"), {"a\nb"}, {"\r\n"}, {"a\0b", 3}, {"\n[B]\ny=2"}}) {
    EXPECT_EQ(FailureOfWriting("A", "x", bad), FailureKind::Preferences) << bad;
    EXPECT_EQ(FailureOfWriting("A", bad, "v"), FailureKind::Preferences) << bad;
    EXPECT_EQ(FailureOfWriting(bad, "x", "v"), FailureKind::Preferences) << bad;
    EXPECT_EQ(folder.Read("vantorium.ini"), before) << bad;
  }
}

TEST_F(mINIFileFunctionsTest, AFailedWriteLeavesTheFile) {
  const std::string before = "[A]\r\nx=\"1\"\r\n";
  folder.Write("vantorium.ini", before);
  {
    const fakes::FullDisk full(15);
    EXPECT_EQ(FailureOfWriting("A", "x", std::string(100, 'v')), FailureKind::Preferences);
  }
  fs::permissions(file, fs::perms(0444));
  EXPECT_EQ(FailureOfWriting("A", "x", "2"), FailureKind::Preferences);
  EXPECT_EQ(folder.Read("vantorium.ini"), before);
  EXPECT_EQ(fakes::NamesIn(folder.Path()), std::vector<std::string>{"vantorium.ini"});
}

TEST_F(mINIFileFunctionsTest, ALinkStaysAndItsTargetIsWritten) {
  folder.Write("kept/real.ini", "[A]\r\nx=\"1\"\r\n");
  fs::create_symlink("kept/real.ini", file);
  WriteINIString("A", "x", "2", file);
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_EQ(folder.Read("kept/real.ini"), "[A]\r\nx=\"2\"\r\n");
}

TEST_F(mINIFileFunctionsTest, AFileThatCannotBeReadIsNotReplaced) {
  fs::create_directory(file);
  EXPECT_EQ(FailureOfWriting("A", "x", "1"), FailureKind::Preferences);
  EXPECT_TRUE(fs::is_directory(file));
  fs::remove(file);
  folder.Write("vantorium.ini", "x");
  fs::resize_file(file, kMostINIBytes + 1);
  EXPECT_EQ(FailureOfWriting("A", "x", "1"), FailureKind::Preferences);
  EXPECT_EQ(fs::file_size(file), kMostINIBytes + 1);
  EXPECT_EQ(FailureOfReading("x"), FailureKind::FileAccess);
}

TEST_F(mINIFileFunctionsTest, AMissingFolderIsAFailureAndIsNotCreated) {
  const auto below = folder.Path() / "none" / "vantorium.ini";
  EXPECT_EQ(FailureOf([&] { WriteINIString("A", "x", "1", below); }), FailureKind::Preferences);
  EXPECT_FALSE(fs::exists(below.parent_path()));
}

}  // namespace
}  // namespace vantorium::env
