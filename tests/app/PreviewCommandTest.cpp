#include "tests/app/Workplace.h"

#include <filesystem>

#include <fcntl.h>
#include <sys/file.h>

namespace vantorium::batch {
namespace {

TEST(PreviewCommand, PrintsTheIndexFileAndMakesOnlyPages) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg", "b.jpg"});
  const ProcessResult result = place.Run({"preview", "a.gpj"});
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.out, place.Path("temp/VANTORIUM_TEMP/index.htm").string() + "\n");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(ListingOf(place.Path("temp/VANTORIUM_TEMP")), "a.jpg.htm\nb.jpg.htm\nindex.htm\nthumbpage_1.htm\n");
}

TEST(PreviewCommand, PagesLinkToTheNativePathsOfTheSources) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg", "home/b.jpg"});
  ASSERT_TRUE(Succeeded(place.Run({"preview", "a.gpj"})));
  const std::string thumbnails = place.Read("temp/VANTORIUM_TEMP/thumbpage_1.htm");
  const std::string a = "\"file://" + place.Path("a.jpg").string() + "\"";
  const std::string b = "\"file://" + place.Path("home/b.jpg").string() + "\"";
  EXPECT_NE(thumbnails.find("<IMG SRC=" + a), std::string::npos) << thumbnails;
  EXPECT_NE(thumbnails.find("<IMG SRC=" + b), std::string::npos) << thumbnails;
  const std::string wrapper = place.Read("temp/VANTORIUM_TEMP/b.jpg.htm");
  EXPECT_NE(wrapper.find("<IMG SRC=" + b), std::string::npos) << wrapper;
}

TEST(PreviewCommand, AProjectWithoutImagesIsRefused) {
  const Workplace place;
  std::filesystem::create_directory(place.Path("empty"));
  ASSERT_TRUE(Succeeded(place.Run({"new", "a.gpj", "empty"})));
  const ProcessResult result = place.Run({"preview", "a.gpj"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "No Images: You cannot preview a Gallery without Images.\n");
}

TEST(PreviewCommand, TheTemporaryFolderDefaultsToThatOfThePreferences) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  std::filesystem::create_directory(place.Path("elsewhere"));
  place.Write("program/vantorium.ini", "[FOLDERS]\r\nTempFolderLocation=\"" + place.Text("elsewhere") + "\"\r\n");
  StartOptions options = place.Options({"preview", "a.gpj"});
  std::erase(options.command, "--temp-folder");
  std::erase(options.command, place.Path("temp").string());
  const ProcessResult result = ChildProcess(options).Finish();
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.out, place.Path("elsewhere/VANTORIUM_TEMP/index.htm").string() + "\n");
}

/// Replaces xdg-open and gio with `script`.
StartOptions WithOpener(const Workplace& place, const std::string& script, const std::vector<std::string>& arguments) {
  for (const char* name : {"bin/xdg-open", "bin/gio"}) {
    const auto opener = place.Write(name, "#!/bin/sh\n" + script + "\n");
    std::filesystem::permissions(opener, std::filesystem::perms::owner_all);
  }
  StartOptions options = place.Options(arguments);
  options.environment["PATH"] = place.Path("bin").string() + ":/usr/bin:/bin";
  return options;
}

TEST(PreviewCommand, OpenPassesTheIndexFileToTheDesktop) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  const std::string script = "printf '%s\\n' \"$@\" >'" + place.Path("opened").string() + "'";
  ASSERT_TRUE(Succeeded(ChildProcess(WithOpener(place, script, {"preview", "a.gpj", "--open"})).Finish()));
  EXPECT_EQ(place.Read("opened"), place.Path("temp/VANTORIUM_TEMP/index.htm").string() + "\n");
}

TEST(PreviewCommand, WithoutOpenNothingIsOpened) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  const std::string script = "touch '" + place.Path("opened").string() + "'";
  ASSERT_TRUE(Succeeded(ChildProcess(WithOpener(place, script, {"preview", "a.gpj"})).Finish()));
  EXPECT_FALSE(std::filesystem::exists(place.Path("opened")));
}

TEST(PreviewCommand, AFailedOpenIsAFailureThatNamesTheProgramsTried) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  const ProcessResult result = ChildProcess(WithOpener(place, "exit 3", {"preview", "a.gpj", "--open"})).Finish();
  EXPECT_TRUE(EndedWith(1, result));
  const std::string index = place.Path("temp/VANTORIUM_TEMP/index.htm").string();
  EXPECT_EQ(result.err, "Error: Error: 75\n\nNothing could open the preview.\nTried \"xdg-open " + index +
                            "\": xdg-open ended with the exit code 3\nTried \"gio open " + index +
                            "\": gio ended with the exit code 3\n");
  EXPECT_EQ(result.out, index + "\n") << "the preview was made";
}

TEST(PreviewCommand, OneWorkingOpenerIsEnough) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  const std::string script = "case $0 in *xdg-open) exit 3;; esac";
  const ProcessResult result = ChildProcess(WithOpener(place, script, {"preview", "a.gpj", "--open"})).Finish();
  EXPECT_TRUE(Succeeded(result));
  EXPECT_EQ(result.err, "");
}

TEST(PreviewCommand, ATemporaryFolderInUseIsRefused) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  const auto folder = place.Path("temp/VANTORIUM_TEMP");
  std::filesystem::create_directory(folder);
  {
    const env::FileDescriptor other(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ASSERT_EQ(::flock(other.Get(), LOCK_EX), 0);
    const ProcessResult result = place.Run({"preview", "a.gpj"});
    EXPECT_TRUE(EndedWith(1, result));
    EXPECT_EQ(result.err, "Directory Error: Another run is using the temporary folder \"" + folder.string() +
                              "\".  Please wait for its end, or choose another location.\n");
    EXPECT_TRUE(std::filesystem::is_empty(folder));
    EXPECT_TRUE(Succeeded(place.Run({"create", "a.gpj", "out/index.htm"}))) << "this run needs no temporary folder";
  }
  EXPECT_TRUE(Succeeded(place.Run({"preview", "a.gpj"})));
}

TEST(PreviewCommand, ALinkInTheTemporaryFolderIsRefused) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  const auto link = place.Path("temp/VANTORIUM_TEMP/images");
  std::filesystem::create_directories(place.Path("stranger"));
  std::filesystem::create_directories(link.parent_path());
  std::filesystem::create_directory_symlink(place.Path("stranger"), link);
  const ProcessResult result = place.Run({"preview", "a.gpj"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err,
            "Directory Error: The temporary folder is not used, as \"" + link.string() + "\" is a symbolic link.\n");
  EXPECT_TRUE(std::filesystem::is_empty(place.Path("stranger")));
}

}  // namespace
}  // namespace vantorium::batch
