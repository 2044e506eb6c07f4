#include "core/file/ProjectFileReader.h"
#include "tests/fakes/ProjectReading.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace vantorium;
using namespace vantorium::core;
using namespace vantorium::fakes;
using namespace std::string_literals;

namespace {

const char kNoProject[] = "The File does not contain a Gallery Project Description.";

class ProjectFileReaderTest : public ::testing::Test, public ProjectReading {};

}  // namespace

TEST_F(ProjectFileReaderTest, ASmallFileIsReadWithoutAMessageBox) {
  ASSERT_TRUE(Read(ProjectFileParts{}));
  EXPECT_EQ(Settings().textGalleryTitle, "Holidays");
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(ProjectFileReaderTest, ReadingShowsTheFileAndTheBusyPointerAndRemovesBoth) {
  ASSERT_TRUE(Read(ProjectFileParts{}));
  EXPECT_EQ(harness.calls,
            (Calls{"status Reading Project File \"" + path + "\"...", "wait pointer", "status ", "pointer"}));
}

TEST_F(ProjectFileReaderTest, AFileThatIsNotXmlIsNotAProject) {
  for (const std::string& text :
       {""s, "   "s, "this is no XML"s, "{}"s, "\0\1\2\3"s, "<a><b></a>"s, "<GALLERYPROJECT>"s,
        ProjectFileParts{}.Text() + "x", ProjectFileParts{}.Text() + "<a/>", ProjectFileParts{}.Text().substr(0, 100),
        ProjectFileParts{.gallery = "TITLE='a' TITLE='b'"}.Text(), ProjectFileParts{.gallery = "TITLE='a&b'"}.Text(),
        ProjectFileParts{.gallery = "TITLE='caf\xE9'"}.Text(),
        "<!DOCTYPE a [<!ENTITY b 'c'>]>" + ProjectFileParts{.gallery = "TITLE='&b;'"}.Text()}) {
    EXPECT_FALSE(Read(text)) << text;
    EXPECT_EQ(Reason(), kNoProject) << text;
  }
}

TEST_F(ProjectFileReaderTest, AnotherDocumentElementIsNotAProject) {
  for (const char* text : {"<GALLERY/>", "<galleryproject><GALLERY/></galleryproject>",
                           "<ROOT><GALLERYPROJECT><GALLERY/></GALLERYPROJECT></ROOT>"}) {
    EXPECT_FALSE(Read(text)) << text;
    EXPECT_EQ(Reason(), kNoProject) << text;
  }
}

TEST_F(ProjectFileReaderTest, AnUnreadableFileIsNotAProject) {
  const std::string pipe = (harness.folder.Path() / "pipe").string();
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& name :
       {harness.PathOf("missing.gpj"), harness.paths.ToText(harness.folder.Path()), harness.PathOf("pipe"),
        "Q:\\no such drive\\a.gpj"s, "\\\\server\\share\\a.gpj"s, ""s, "/dev/zero"s}) {
    path = name;
    EXPECT_FALSE(ReadPath()) << name;
    EXPECT_EQ(Reason(), kNoProject) << name;
  }
}

TEST_F(ProjectFileReaderTest, HostileFilesAreNotProjects) {
  std::string deep;
  for (int depth = 0; depth < 1'000'000; ++depth) deep += "<a>";
  EXPECT_FALSE(Read(deep));
  EXPECT_EQ(Reason(), kNoProject);
  EXPECT_FALSE(Read(ProjectFileParts{.gallery = "TITLE='" + std::string(200'000'000, 'x') + "'"}));
  EXPECT_EQ(Reason(), kNoProject);
}

TEST_F(ProjectFileReaderTest, OtherEncodingsAreRecognizedByByteOrderMarkOrDeclaration) {
  const std::string text = ProjectFileParts{}.Text();
  std::string wide = "\xFF\xFE";
  for (const char byte : text) wide += {byte, '\0'};
  EXPECT_TRUE(Read(wide));
  EXPECT_EQ(Settings().textGalleryTitle, "Holidays");
  EXPECT_TRUE(Read("\xEF\xBB\xBF" + text));
  EXPECT_TRUE(
      Read("<?xml version='1.0' encoding='ISO-8859-1'?>" + ProjectFileParts{.gallery = "TITLE='caf\xE9'"}.Text()));
  EXPECT_EQ(Settings().textGalleryTitle, "caf\xC3\xA9");
  EXPECT_FALSE(Read(wide.substr(0, wide.size() - 1)));
}

TEST_F(ProjectFileReaderTest, AProjectRequiresAGallery) {
  EXPECT_FALSE(Read("<GALLERYPROJECT/>"));
  EXPECT_EQ(Box(), "Invalid Project File: \"" + path +
                       "\" could not be loaded in whole because it is not a valid Vantorium 3.0 Project File.\r\r"
                       "Reason: The File does not contain a Gallery Description.");
  EXPECT_EQ(harness.boxes.boxes[0].kind, env::BoxKind::Critical);
  EXPECT_FALSE(Read("<GALLERYPROJECT><a><GALLERY/></a></GALLERYPROJECT>"));
  EXPECT_EQ(Reason(), "The File does not contain a Gallery Description.");
}

TEST_F(ProjectFileReaderTest, EachMissingElementHasItsReason) {
  const std::pair<ProjectFileParts, std::string> cases[] = {
      {{.layout = ""}, "No Gallery Layout has been specified."},
      {{.layout = "<LAYOUT/>"}, "No Gallery Layout has been specified."},
      {{.layout = "<layout TYPE='singleframe'/>"}, "No Gallery Layout has been specified."},
      {{.thumbnailPage = ""}, "ARRANGEMENT?"},
      {{.thumbnailPage = "<PAGELINKS/>"}, "ARRANGEMENT?"},
      {{.thumbnailPage = "<ARRANGEMENT/>"}, "No Page Links specified."},
      {{.imagePage = "<IMAGEPAGE/>"}, "No Page Links specified."},
  };
  for (const auto& [parts, reason] : cases) {
    EXPECT_FALSE(Read(parts)) << parts.Text();
    EXPECT_EQ(Reason(), reason) << parts.Text();
  }
  EXPECT_FALSE(Read("<GALLERYPROJECT><GALLERY><LAYOUT TYPE='singleframe'/></GALLERY></GALLERYPROJECT>"));
  EXPECT_EQ(Reason(), "No Thumbnail Page Format specified.");
}

TEST_F(ProjectFileReaderTest, AfterAnInvalidFileStatusTextAndBusyPointerAreRemoved) {
  EXPECT_FALSE(Read("<GALLERYPROJECT/>"));
  EXPECT_EQ(harness.calls, (Calls{"status Reading Project File \"" + path + "\"...", "wait pointer",
                                  "box Invalid Project File", "status ", "pointer"}));
}

TEST_F(ProjectFileReaderTest, AfterAnInvalidNumberStatusTextAndBusyPointerStay) {
  EXPECT_FALSE(Read(ProjectFileParts{.thumbnailPage = "<ARRANGEMENT ROWS='many'/><PAGELINKS/>"}));
  EXPECT_EQ(Box(), "Vantorium: Type mismatch");
  EXPECT_EQ(harness.boxes.boxes[0].kind, env::BoxKind::Plain);
  EXPECT_EQ(harness.calls, (Calls{"status Reading Project File \"" + path + "\"...", "wait pointer", "box Vantorium"}));
  EXPECT_FALSE(Read(ProjectFileParts{.lists = "<IMAGES><MODIFY><SIZE KEEPASPECTRATIO='32768'/></MODIFY></IMAGES>"}));
  EXPECT_EQ(Box(), "Vantorium: Overflow");
}

TEST_F(ProjectFileReaderTest, TheEventLoopHasATurnAfterTheStatusTextAndBeforeSettingsChange) {
  harness.project.settings.ImageHeader = "old";
  Calls callsThen;
  harness.events.onTurn = [&](int turn) {
    if (turn != 1) return;
    callsThen = harness.calls;
    EXPECT_EQ(Settings().ImageHeader, "old");
  };
  ASSERT_TRUE(Read(ProjectFileParts{}));
  EXPECT_EQ(callsThen, (Calls{"status Reading Project File \"" + path + "\"...", "wait pointer"}));
}

TEST_F(ProjectFileReaderTest, ReadingBeginsWithDefaultSettings) {
  harness.project.UntitledCounter = 7;
  harness.project.settings.ImageHeader = "old";
  harness.project.settings.checkImageWrapperImageSizesInPercent = 1;
  ASSERT_TRUE(Read(ProjectFileParts{.gallery = ""}));
  EXPECT_EQ(Settings().textGalleryTitle, "Gallery7");
  EXPECT_EQ(Settings().ImageHeader, "");
  EXPECT_EQ(Settings().checkImageWrapperImageSizesInPercent, 1);
}

TEST_F(ProjectFileReaderTest, AnEmptyTitleIsAValue) {
  ASSERT_TRUE(Read(ProjectFileParts{.gallery = "TITLE=''"}));
  EXPECT_EQ(Settings().textGalleryTitle, "");
}

TEST_F(ProjectFileReaderTest, ReadingLeavesTheStateOfTheProject) {
  Project& project = harness.project;
  project.ProjectFileName = "old.gpj";
  for (const bool state : {false, true}) {
    for (const std::string& text : {ProjectFileParts{}.Text(), std::string("<GALLERYPROJECT/>")}) {
      project.IsModified = project.IsPristine = project.IsUntitled = state;
      std::ignore = Read(text);
      EXPECT_EQ(project.IsModified, state) << text;
      EXPECT_EQ(project.IsPristine, state) << text;
      EXPECT_EQ(project.IsUntitled, state) << text;
      EXPECT_EQ(project.ProjectFileName, "old.gpj");
    }
  }
}

TEST_F(ProjectFileReaderTest, ValuesReadBeforeAFailureStay) {
  harness.File("a.jpg");
  EXPECT_FALSE(Read(ProjectFileParts{
      .lists = "<HEAD>head</HEAD><IMAGES><IMAGE INDEX='1' NAME='a' SOURCE='" + harness.PathOf("a.jpg") + "'/></IMAGES>",
      .thumbnailPage = ""}));
  EXPECT_EQ(Settings().textGalleryTitle, "Holidays");
  EXPECT_EQ(Settings().GalleryHeadCode, "head");
  EXPECT_EQ(harness.project.images.Count(), 1U);
}

TEST_F(ProjectFileReaderTest, TextsOfTheGalleryHaveCrLfAndAreEmptyIfAbsent) {
  ASSERT_TRUE(
      Read(ProjectFileParts{.lists = "<HEAD><![CDATA[a\r\nb]]></HEAD><INFO>c\nd<b>e</b></INFO><HEAD>another</HEAD>"}));
  EXPECT_EQ(Settings().GalleryHeadCode, "a\r\nb");
  EXPECT_EQ(Settings().GalleryInfoText, "c\r\nde");
  ASSERT_TRUE(Read(ProjectFileParts{}));
  EXPECT_EQ(Settings().GalleryHeadCode, "");
  EXPECT_EQ(Settings().GalleryInfoText, "");
}

TEST_F(ProjectFileReaderTest, VersionAndUnknownElementsAreIgnored) {
  std::string text = ProjectFileParts{.lists = "<UNKNOWN TYPE='x'><HEAD>no</HEAD></UNKNOWN>"}.Text();
  text.insert(text.find('>'), " VERSION='99'");
  ASSERT_TRUE(Read(text));
  EXPECT_EQ(Settings().GalleryHeadCode, "");
}
