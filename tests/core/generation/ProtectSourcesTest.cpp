#include "core/generation/ProtectSources.h"
#include "tests/core/generation/RunFixture.h"

namespace vantorium::generation {
namespace {

namespace fs = std::filesystem;

class ProtectSourcesTest : public RunFixture {
 protected:
  /// Expects that the run ends with this message box and neither adds nor changes any file.
  void ExpectRefusal(const RunOrder& order, const std::string& text) {
    const auto names = FilesIn(".");
    std::map<std::string, std::string> before;
    for (const auto& name : names) before[name] = folder.Read(name);
    EXPECT_EQ(Run(order), RunEnd::Failure) << text;
    ASSERT_EQ(boxes.boxes.size(), 1U) << text;
    EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Critical);
    EXPECT_EQ(boxes.boxes[0].title, "File Error");
    EXPECT_EQ(boxes.boxes[0].text, text);
    EXPECT_EQ(FilesIn("."), names);
    for (const auto& name : names) EXPECT_EQ(folder.Read(name), before[name]) << name;
    boxes.boxes.clear();
  }
  void ExpectSuccess(const RunOrder& order) {
    EXPECT_EQ(Run(order), RunEnd::Success) << (boxes.boxes.empty() ? "" : boxes.boxes[0].text);
  }
  void Link(const std::string& from, const std::string& to) const {
    fs::create_directories((folder.Path() / from).parent_path());
    fs::create_symlink(folder.Path() / to, folder.Path() / from);
  }
  void HardLink(const std::string& from, const std::string& to) const {
    fs::create_directories((folder.Path() / from).parent_path());
    fs::create_hard_link(folder.Path() / to, folder.Path() / from);
  }

  [[nodiscard]] static std::string Replacing(const std::string& path) {
    return "  It would replace \"" + path + "\", which this Gallery is made from.";
  }
  [[nodiscard]] static std::string ImageText(const std::string& source, const std::string& path) {
    return "Unable to copy the File \"" + source + "\"." + Replacing(path);
  }
  [[nodiscard]] static std::string PageTextOf(const std::string& path) {
    return "Unable to create the File \"" + path + "\"." + Replacing(path);
  }
};

const char kOwnImage[] = "T:\\out\\Images\\a.jpg";

TEST_F(ProtectSourcesTest, AnImageDoesNotReplaceItsOwnSource) {
  AddPhotograph("first");
  folder.Write("out/Images/a.jpg", PlainJpeg(64, 64));
  AddEntry("a", kOwnImage);
  ExpectRefusal(OrderToCreate(), ImageText(kOwnImage, kOwnImage));
}

TEST_F(ProtectSourcesTest, AnImageDoesNotReplaceTheSourceOfAnother) {
  folder.Write("out/Images/a.jpg", PlainJpeg(64, 64));
  AddEntry("other", kOwnImage);
  AddPhotograph("a");
  for (const core::Flag keepSize : {core::Flag{0}, core::Flag{1}}) {
    project.settings.checkImageWrapperImageKeepSize = keepSize;
    ExpectRefusal(OrderToCreate(), ImageText("T:\\photos\\a.jpg", kOwnImage));
  }
}

TEST_F(ProtectSourcesTest, ASourceIsRecognizedThroughLinksAndOtherPaths) {
  AddPhotograph("a");
  Link("out/Images/a.jpg", "photos/a.jpg");
  ExpectRefusal(OrderToCreate(), ImageText("T:\\photos\\a.jpg", kOwnImage));

  fs::remove(folder.Path() / "out/Images/a.jpg");
  HardLink("out/Images/a.jpg", "photos/a.jpg");
  ExpectRefusal(OrderToCreate(), ImageText("T:\\photos\\a.jpg", kOwnImage));

  fs::remove_all(folder.Path() / "out");
  fs::create_directories(folder.Path() / "out");
  fs::create_directory_symlink(folder.Path() / "photos", folder.Path() / "out/Images");
  ExpectRefusal(OrderToCreate(), ImageText("T:\\photos\\a.jpg", kOwnImage));

  fs::remove_all(folder.Path() / "out");
  RunOrder order = OrderToCreate();
  order.OutputFolder = "T:\\out\\..\\";
  project.settings.textImageSettingsSubFolder = "photos";
  ExpectRefusal(order, ImageText("T:\\photos\\a.jpg", "T:\\out\\..\\photos\\a.jpg"));
}

TEST_F(ProtectSourcesTest, AThumbnailDoesNotReplaceASource) {
  AddPhotograph("a");
  folder.Write("out/Thumbs/thumb_a.jpg", PlainJpeg(64, 64));
  AddEntry("b", "T:\\out\\Thumbs\\thumb_a.jpg");
  ExpectRefusal(OrderToCreate(),
                "Unable to create Thumbnail for \"T:\\photos\\a.jpg\"." + Replacing("T:\\out\\Thumbs\\thumb_a.jpg"));
}

TEST_F(ProtectSourcesTest, GraphicsNeitherReplaceSourcesNorAreReplacedByImages) {
  AddPhotograph("a");
  folder.Write("out/Images/_backdrop_thumbpage.gif", "GIF");
  folder.Write("project/back.gif", "new");
  project.settings.textThumbnailsTableBackdrop = "T:\\out\\Images\\_backdrop_thumbpage.gif";
  project.settings.textThumbnailsPageBackdrop = "back.gif";
  ExpectRefusal(OrderToCreate(), ImageText("T:\\project\\back.gif", "T:\\out\\Images\\_backdrop_thumbpage.gif"));

  project.settings.textThumbnailsPageBackdrop = "";
  project.settings.ImageNextLink.textLinkGraphic = "T:\\out\\Images\\a.jpg";
  folder.Write("out/Images/a.jpg", "graphic");
  ExpectRefusal(OrderToCreate(), ImageText("T:\\photos\\a.jpg", kOwnImage));
}

TEST_F(ProtectSourcesTest, APageReplacesNeitherTheProjectNorAPhotograph) {
  AddPhotograph("a");
  project.ProjectFolder = "T:\\out";
  for (const auto& name : {"index.htm", "thumbpage_1.htm", "a.htm"}) {
    project.ProjectFileName = name;
    folder.Write(std::string("out/") + name, "the project");
    for (GenerationMode mode : {GenerationMode::Create, GenerationMode::Preview}) {
      RunOrder order = OrderToCreate();
      order.Mode = mode;
      ExpectRefusal(order, PageTextOf(std::string("T:\\out\\") + name));
    }
  }
  project.ProjectFileName = "";
  AddEntry("page", "T:\\out\\index.htm");
  RunOrder order = OrderToCreate();
  order.CreateImages = order.CreateThumbnails = false;
  ExpectRefusal(order, PageTextOf("T:\\out\\index.htm"));
}

TEST_F(ProtectSourcesTest, OnlyFilesThatTheRunWritesAreChecked) {
  folder.Write("out/Images/a.jpg", PlainJpeg(40, 30));
  AddEntry("a", kOwnImage);
  const std::string photograph = folder.Read("out/Images/a.jpg");
  RunOrder order = OrderToCreate();
  order.Overwrite = false;
  ExpectSuccess(order);
  order.Overwrite = true;
  order.CreateImages = false;
  ExpectSuccess(order);
  ExpectSuccess(OrderToPreview());
  EXPECT_EQ(folder.Read("out/Images/a.jpg"), photograph);

  folder.Write("out/index.htm", "the project");
  project.ProjectFolder = "T:\\out\\";
  project.ProjectFileName = "index.htm";
  order.CreateHTML = false;
  ExpectSuccess(order);
}

TEST_F(ProtectSourcesTest, ACopyOntoItselfIsAllowedAndChangesNothing) {
  folder.Write("out/Images/a.jpg", PlainJpeg(40, 30));
  folder.Write("out/Images/_backdrop_thumbpage.gif", "GIF");
  AddEntry("a", kOwnImage);
  project.settings.checkImageWrapperImageKeepSize = 1;
  project.settings.textThumbnailsPageBackdrop = "T:\\out\\Images\\_backdrop_thumbpage.gif";
  const std::string photograph = folder.Read("out/Images/a.jpg");
  ExpectSuccess(OrderToCreate());
  EXPECT_EQ(folder.Read("out/Images/a.jpg"), photograph);
  EXPECT_EQ(folder.Read("out/Images/_backdrop_thumbpage.gif"), "GIF");
}

TEST_F(ProtectSourcesTest, ASecondRunIntoTheSameFolderReplacesTheFilesOfTheFirst) {
  AddPhotograph("a");
  folder.Write("project/gallery.gpj", "the project");
  project.ProjectFileName = "gallery.gpj";
  ExpectSuccess(OrderToCreate());
  project.settings.textImageWrapperImageHeight = "8";
  ExpectSuccess(OrderToCreate());
  EXPECT_NE(folder.Read("out/a.htm").find("HEIGHT=\"8\""), std::string::npos);
}

TEST_F(ProtectSourcesTest, AFileNamedLikeAnUntitledProjectIsNotTheProject) {
  AddPhotograph("a");
  folder.Write("out/index.htm", "an old page");
  project.ProjectFolder = "T:\\out\\";
  project.ProjectFileName = "index.htm";
  project.IsUntitled = true;
  ExpectSuccess(OrderToCreate());
}

TEST_F(ProtectSourcesTest, ALongCheckGivesTheEventLoopTurnsAndCanBeCancelled) {
  folder.Write("photos/a.jpg", PlainJpeg(8, 8));
  for (int i = 0; i < 2500; ++i) AddEntry("i" + std::to_string(i), "T:\\photos\\a.jpg");
  int turns = 0;
  loop.onTurn = [&](int) {
    if (host.statuses.empty() || host.statuses.back() != "Creating Directories...") return;
    if (++turns == 4) {
      host.openWindow->SetIsCancelled(true);
      std::ignore = cancel.CheckForCancel(*host.openWindow);
    }
  };
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Cancelled);
  EXPECT_EQ(turns, 4);
  EXPECT_TRUE(FilesIn("out").empty());
}

}  // namespace
}  // namespace vantorium::generation
