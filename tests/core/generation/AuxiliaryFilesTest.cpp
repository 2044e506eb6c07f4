#include "core/generation/AuxiliaryFiles.h"
#include "tests/core/generation/RunFixture.h"

namespace vantorium::generation {
namespace {

class AuxiliaryFilesTest : public RunFixture {
 protected:
  AuxiliaryFilesTest() { AddPhotograph("a"); }

  /// Runs without pages, and returns the auxiliary files in the images folder.
  std::set<std::string> Copied() {
    RunOrder order = OrderToCreate();
    order.CreateHTML = false;
    end = Run(order);
    auto found = FilesIn("out/Images");
    found.erase("a.jpg");
    return found;
  }

  RunEnd end = RunEnd::NotStarted;
};

using Names = std::set<std::string>;

TEST_F(AuxiliaryFilesTest, WithoutGraphicsNothingIsCopied) {
  EXPECT_EQ(Copied(), Names{});
  EXPECT_EQ(end, RunEnd::Success);
}

TEST_F(AuxiliaryFilesTest, EachGraphicIsCopiedToItsFixedNameWithTheExtensionOfTheSource) {
  folder.Write("project/g.GIF", "graphic");
  auto& s = project.settings;
  s.textThumbnailsTableBackdrop = s.textThumbnailsPageBackdrop = s.textImageWrapperBackdrop = "g.GIF";
  for (auto link : {&core::GalleryProject::ThumbnailFirstLink, &core::GalleryProject::ThumbnailPreviousLink,
                    &core::GalleryProject::ThumbnailNextLink, &core::GalleryProject::ThumbnailLastLink,
                    &core::GalleryProject::ImageFirstLink, &core::GalleryProject::ImagePreviousLink,
                    &core::GalleryProject::ImageNextLink, &core::GalleryProject::ImageLastLink,
                    &core::GalleryProject::ImageIndexLink}) {
    (s.*link).textLinkGraphic = "g.GIF";
    (s.*link).textLinkGraphicDisabled = "g.GIF";
  }
  Names expected;
  for (const char* name :
       {"_backdrop_thumbtable",   "_backdrop_thumbpage", "_backdrop_imagepage",       "_thumblink_first",
        "_thumblink_first_first", "_thumblink_previous", "_thumblink_previous_first", "_thumblink_next",
        "_thumblink_next_last",   "_thumblink_last",     "_thumblink_last_last",      "_imagelink_first",
        "_imagelink_first_first", "_imagelink_previous", "_imagelink_previous_first", "_imagelink_next",
        "_imagelink_next_last",   "_imagelink_last",     "_imagelink_last_last",      "_imagelink_index"}) {
    expected.insert(std::string(name) + ".GIF");
  }
  EXPECT_EQ(Copied(), expected);
  EXPECT_EQ(folder.Read("out/Images/_imagelink_index.GIF"), "graphic");
}

TEST_F(AuxiliaryFilesTest, AGraphicWithAFolderIsUsedUnchanged) {
  folder.Write("elsewhere/g.gif", "there");
  folder.Write("project/g.gif", "beside the project");
  project.settings.textThumbnailsPageBackdrop = "T:/elsewhere/g.gif";
  EXPECT_EQ(Copied(), Names{"_backdrop_thumbpage.gif"});
  EXPECT_EQ(folder.Read("out/Images/_backdrop_thumbpage.gif"), "there");
}

TEST_F(AuxiliaryFilesTest, AProjectFolderMayLackItsTrailingBackslash) {
  folder.Write("project/g.gif", "GIF");
  project.ProjectFolder = "T:\\project";
  project.settings.textThumbnailsPageBackdrop = "g.gif";
  EXPECT_EQ(Copied(), Names{"_backdrop_thumbpage.gif"});
}

struct MissingCase {
  std::string core::GalleryProject::*backdrop;
  core::LinkSettings core::GalleryProject::*link;
  const char* text;
};

TEST_F(AuxiliaryFilesTest, AMissingGraphicEndsTheRunWithTheMessageOfItsKind) {
  for (const MissingCase& c :
       {MissingCase{&core::GalleryProject::textImageWrapperBackdrop, nullptr,
                    "Unable to copy the File \"T:\\none.gif\"."},
        MissingCase{nullptr, &core::GalleryProject::ThumbnailLastLink, "Unable to copy the File \"T:\\none.gif\"."},
        MissingCase{nullptr, &core::GalleryProject::ImageFirstLink, "Unable to copy the file \"T:\\none.gif\"."},
        MissingCase{nullptr, &core::GalleryProject::ImageIndexLink, "Unable to copy the file \"T:\\none.gif\"."}}) {
    project.settings = {};
    boxes.boxes.clear();
    if (c.backdrop != nullptr) project.settings.*c.backdrop = "T:\\none.gif";
    if (c.link != nullptr) (project.settings.*c.link).textLinkGraphic = "T:\\none.gif";
    Copied();
    EXPECT_EQ(end, RunEnd::Failure);
    ASSERT_EQ(boxes.boxes.size(), 1U);
    EXPECT_EQ(boxes.boxes[0].title, "File Error");
    EXPECT_EQ(boxes.boxes[0].text, c.text);
  }
}

TEST_F(AuxiliaryFilesTest, WithoutWrapperPagesGraphicsOfImageLinksAreNotCopied) {
  folder.Write("project/g.gif", "GIF");
  project.settings.checkImageWrapperUse = 0;
  for (auto link : {&core::GalleryProject::ImageFirstLink, &core::GalleryProject::ImagePreviousLink,
                    &core::GalleryProject::ImageNextLink, &core::GalleryProject::ImageLastLink,
                    &core::GalleryProject::ImageIndexLink}) {
    (project.settings.*link).textLinkGraphic = "g.gif";
    (project.settings.*link).textLinkGraphicDisabled = "missing.gif";
  }
  project.settings.ThumbnailNextLink.textLinkGraphic = "g.gif";
  project.settings.textImageWrapperBackdrop = "g.gif";
  EXPECT_EQ(Copied(), (Names{"_backdrop_imagepage.gif", "_thumblink_next.gif"}));
  EXPECT_EQ(end, RunEnd::Success);
}

TEST_F(AuxiliaryFilesTest, TheIndexLinkHasNoDisabledGraphic) {
  folder.Write("project/g.gif", "GIF");
  project.settings.ImageIndexLink.textLinkGraphicDisabled = "g.gif";
  EXPECT_EQ(Copied(), Names{});
}

TEST_F(AuxiliaryFilesTest, BothPageBackdropsAreCopiedEvenIfTheyAreTheSame) {
  folder.Write("project/g.gif", "GIF");
  project.settings.textThumbnailsPageBackdrop = project.settings.textImageWrapperBackdrop = "g.gif";
  EXPECT_EQ(Copied(), (Names{"_backdrop_thumbpage.gif", "_backdrop_imagepage.gif"}));
}

TEST_F(AuxiliaryFilesTest, GraphicsAreReplacedEvenWithoutOverwrite) {
  folder.Write("project/g.gif", "new");
  folder.Write("out/Images/_backdrop_thumbpage.gif", "old");
  project.settings.textThumbnailsPageBackdrop = "g.gif";
  RunOrder order = OrderToCreate();
  order.Overwrite = false;
  Run(order);
  EXPECT_EQ(folder.Read("out/Images/_backdrop_thumbpage.gif"), "new");
}

}  // namespace
}  // namespace vantorium::generation
