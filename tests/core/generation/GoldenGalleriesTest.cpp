#include "core/generation/DirectLinks.h"
#include "core/generation/IndexPage.h"
#include "core/generation/OutputNaming.h"
#include "core/generation/PageEncoding.h"
#include "core/generation/TagTable.h"
#include "core/generation/ThumbnailPage.h"
#include "core/generation/WrapperPage.h"
#include "tests/core/generation/PageFixture.h"
#include "tests/fakes/SourceFolder.h"
#include "tests/fakes/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <ostream>
#include <set>
#include <vector>

namespace vantorium::tests {
namespace {

namespace fs = std::filesystem;

/// All pages of a gallery, by file name.
using Pages = std::map<std::string, std::string>;

/// A project with default settings, 3 images and 2 images per page, changed by `set`.
struct Gallery {
  std::string name;
  std::function<void(core::GalleryProject&)> set;
  int images = 3;
  generation::GenerationMode mode = generation::GenerationMode::Create;

  friend void PrintTo(const Gallery& gallery, std::ostream* stream) { *stream << gallery.name; }
};

const std::string kDescriptionCode = "No. <VANTORIUM_IMAGE_INDEX>: ";

void SetCaptions(core::GalleryProject& project, core::Choice placement, core::Choice alignment) {
  project.checkCaptionsImagesRegular = 1;
  project.ImageRegularCaption = "<VANTORIUM_IMAGE_TITLE>";
  project.comboCaptionsImagesRegularPlacement = placement;
  project.comboCaptionsImagesRegularAlignment = alignment;
  project.checkCaptionsThumbnailsRegular = 1;
  project.ThumbnailRegularCaption = "<VANTORIUM_IMAGE_INDEX> of <VANTORIUM_IMAGE_COUNT>";
  project.comboCaptionsThumbnailsRegularPlacement = placement;
  project.comboCaptionsThumbnailsRegularAlignment = alignment;
}

void SetDescriptions(core::GalleryProject& project, core::Choice placement, core::Choice alignment) {
  project.textHeader = kDescriptionCode;
  project.textFooter = ".";
  project.comboImageDescriptionPlacement = placement;
  project.comboImageDescriptionAlignment = alignment;
  project.textThumbHeader = kDescriptionCode;
  project.textThumbFooter = ".";
  project.comboThumbnailDescriptionPlacement = placement;
  project.comboThumbnailDescriptionAlignment = alignment;
}

void SetSlideShow(core::GalleryProject& project, core::Choice beginWith, core::Choice afterImage,
                  core::Choice startOver) {
  project.checkGallerySlideShow = 1;
  project.comboGallerySlideShowBeginWith = beginWith;
  project.comboGallerySlideShowActionAfterImage = afterImage;
  project.comboGallerySlideShowStartOverWith = startOver;
}

void SetLayout(core::GalleryProject& project, core::Choice layout) {
  project.comboGalleryLayoutType = layout;
  project.comboImageFrameName = "image_frame";
}

void SetGraphics(core::GalleryProject& project, bool withLabels) {
  int number = 0;
  for (core::LinkSettings core::GalleryProject::*link :
       {&core::GalleryProject::ThumbnailFirstLink, &core::GalleryProject::ThumbnailPreviousLink,
        &core::GalleryProject::ThumbnailNextLink, &core::GalleryProject::ThumbnailLastLink,
        &core::GalleryProject::ImageFirstLink, &core::GalleryProject::ImagePreviousLink,
        &core::GalleryProject::ImageNextLink, &core::GalleryProject::ImageLastLink,
        &core::GalleryProject::ImageIndexLink}) {
    core::LinkSettings& settings = project.*link;
    settings.textLinkGraphic = "C:\\Buttons\\" + std::to_string(++number) + ".gif";
    settings.textLinkGraphicDisabled = "C:\\Buttons\\" + std::to_string(number) + ".png";
    if (!withLabels) settings.textLinkLabel.clear();
  }
  project.ThumbnailFirstLink.textLinkGraphicDisabled.clear();
  project.comboPageLinksThumbnailLinkPlacement = 3;
  project.comboPageLinksImageLinkPlacement = 3;
}

std::string EveryTag() {
  std::string text;
  for (const generation::TagRow& row : generation::TagRows())
    text.append(row.tag.substr(1)).append(" ").append(row.tag).append("\r\n");
  for (const generation::DescriptionTags& row : generation::DescriptionTagRows())
    text.append(row.tag).append(" ").append(row.fullTag);
  return text;
}

void AddLayouts(std::vector<Gallery>& galleries) {
  galleries.push_back({"new_project", [](core::GalleryProject&) {}});
  galleries.push_back({"frame_left", [](core::GalleryProject& project) { SetLayout(project, 1); }});
  galleries.push_back({"frame_right", [](core::GalleryProject& project) {
                         SetLayout(project, 2);
                         project.comboGalleryFrameSizingPriority = 1;
                         project.ImageFrameSize = 80;
                         project.checkGalleryFrameSizeInPercent = 1;
                       }});
  galleries.push_back({"frame_top", [](core::GalleryProject& project) {
                         SetLayout(project, 3);
                         project.checkGalleryFramesDisplayBorders = 1;
                         project.checkGalleryFramesResizable = 1;
                       }});
  galleries.push_back({"frame_bottom", [](core::GalleryProject& project) {
                         SetLayout(project, 4);
                         project.checkImageWrapperUse = 0;
                       }});
}

void AddTexts(std::vector<Gallery>& galleries) {
  const std::string places[] = {"left", "right", "above", "below"};
  for (core::Choice place = 0; place < 4; ++place) {
    const auto description = static_cast<core::Choice>(place + 1);
    for (core::Choice alignment = 0; alignment < 3; ++alignment) {
      const std::string end = places[place] + "_" + std::to_string(alignment);
      galleries.push_back(
          {"caption_" + end, [=](core::GalleryProject& project) { SetCaptions(project, place, alignment); }, 1});
      galleries.push_back({"description_" + end,
                           [=](core::GalleryProject& project) { SetDescriptions(project, description, alignment); },
                           1});
    }
    for (core::Choice caption = 0; caption < 4; ++caption) {
      galleries.push_back({"description_" + places[place] + "_caption_" + places[caption],
                           [=](core::GalleryProject& project) {
                             SetCaptions(project, caption, 1);
                             SetDescriptions(project, description, 2);
                           },
                           1});
    }
  }
  galleries.push_back({"popup_captions", [](core::GalleryProject& project) {
                         project.checkCaptionsImagesPopup = 1;
                         project.ImagePopupCaption = "<VANTORIUM_IMAGE_DESCRIPTION>";
                         project.checkCaptionsThumbnailsPopup = 1;
                         project.ThumbnailPopupCaption = "page <VANTORIUM_THUMBPAGE_INDEX>";
                       }});
  galleries.push_back({"every_tag", [](core::GalleryProject& project) {
                         SetGraphics(project, true);
                         SetDescriptions(project, 0, 0);
                         project.GalleryHeadCode = EveryTag();
                         project.ThumbnailPageBodyHeader = EveryTag();
                         project.ThumbnailHeader = EveryTag();
                         project.ImageHeader = EveryTag();
                       }});
  galleries.push_back({"non_ascii_letters", [](core::GalleryProject& project) {
                         project.textGalleryTitle = "Z\xC3\xBCrich";
                         project.ImageHeader = "\xE2\x82\xAC";
                       }});
}

void AddSlideShows(std::vector<Gallery>& galleries) {
  for (const core::Choice startOver : std::initializer_list<core::Choice>{0, 1, 2}) {
    galleries.push_back({"slide_show_start_over_" + std::to_string(startOver),
                         [=](core::GalleryProject& project) { SetSlideShow(project, 1, 0, startOver); }});
  }
  for (const core::Choice afterImage : std::initializer_list<core::Choice>{1, 2}) {
    galleries.push_back({"slide_show_after_image_" + std::to_string(afterImage),
                         [=](core::GalleryProject& project) { SetSlideShow(project, 0, afterImage, 1); }});
  }
  galleries.push_back({"slide_show_without_auto_start", [](core::GalleryProject& project) {
                         SetSlideShow(project, 0, 0, 1);
                         project.checkGallerySlideShowAutoStart = 0;
                       }});
  galleries.push_back({"slide_show_in_two_frames", [](core::GalleryProject& project) {
                         SetSlideShow(project, 0, 0, 1);
                         SetLayout(project, 1);
                       }});
}

void AddLinks(std::vector<Gallery>& galleries) {
  galleries.push_back({"links_with_graphics", [](core::GalleryProject& project) { SetGraphics(project, true); }, 5});
  galleries.push_back(
      {"links_with_graphics_only", [](core::GalleryProject& project) { SetGraphics(project, false); }, 5});
  galleries.push_back({"direct_links",
                       [](core::GalleryProject& project) {
                         project.checkPageLinksThumbnailDirectLinks = 1;
                         project.textPageLinksThumbnailMaxDirectLinks = "2";
                         project.comboPageLinksThumbnailLinkPlacement = 2;
                         project.comboPageLinksImageLinkPlacement = 1;
                       },
                       9});
  galleries.push_back({"no_links", [](core::GalleryProject& project) {
                         project.comboPageLinksThumbnailLinkPlacement = 0;
                         project.comboPageLinksImageLinkPlacement = 0;
                       }});
}

void AddLooks(std::vector<Gallery>& galleries) {
  galleries.push_back({"colors_and_backdrops", [](core::GalleryProject& project) {
                         project.checkThumbnailsPageSetColors = 1;
                         project.checkImageWrapperSetColors = 1;
                         project.ImagePageBgColor = 0x123456;
                         project.checkThumbnailsTableUseBGColor = 1;
                         project.btnThumbnailsTableBGColor = 0x0000FF;
                         project.textThumbnailsTableBackdrop = "C:\\Pics\\wood.gif";
                         project.textThumbnailsPageBackdrop = "C:\\Pics\\sand.JPG";
                         project.textImageWrapperBackdrop = "C:\\Pics\\sand.JPG";
                         project.comboThumbnailsTableAlignment = 0;
                         project.checkImageWrapperImageKeepAspectRatio = 0;
                       }});
  galleries.push_back({"custom_names", [](core::GalleryProject& project) {
                         project.textThumbnailImageSettingsFilePrefix = "";
                         project.textThumbnailPageSettingsFilePrefix = "";
                         project.comboThumbnailPageSettingsFileExtension = ".shtml";
                         project.comboImageWrapperSettingsFileExtension = ".html";
                         project.textThumbnailFrameName = "left";
                         project.comboThumbnailsTableAlignment = 3;
                         project.checkImageWrapperImageKeepSize = 1;
                       }});
  galleries.push_back({"preview", [](core::GalleryProject& project) { SetLayout(project, 1); }, 3,
                       generation::GenerationMode::Preview});
  galleries.push_back({"preview_without_wrappers",
                       [](core::GalleryProject& project) {
                         SetSlideShow(project, 0, 0, 1);
                         project.checkImageWrapperUse = 0;
                         project.textThumbnailsPageBackdrop = "sand.JPG";
                       },
                       3, generation::GenerationMode::Preview});
}

std::vector<Gallery> Galleries() {
  std::vector<Gallery> galleries;
  AddLayouts(galleries);
  AddTexts(galleries);
  AddSlideShows(galleries);
  AddLinks(galleries);
  AddLooks(galleries);
  return galleries;
}

fs::path GoldenFolder() {
  return fakes::SourceFolder() / "tests" / "golden";
}

/// With VANTORIUM_REMAKE_GOLDEN=1, rewrites the golden files instead of comparing: review every difference.
bool RemakesGolden() {
  const char* value = std::getenv("VANTORIUM_REMAKE_GOLDEN");
  return value != nullptr && std::string_view(value) == "1";
}

Pages ReadPages(const fs::path& folder) {
  Pages pages;
  if (!fs::exists(folder)) return pages;
  for (const auto& entry : fs::directory_iterator(folder)) {
    pages[entry.path().filename().string()] = fakes::TemporaryFolder::ReadFile(entry.path());
  }
  return pages;
}

void WritePages(const fs::path& folder, const Pages& pages) {
  fs::remove_all(folder);
  fs::create_directories(folder);
  for (const auto& [name, bytes] : pages) std::ofstream(folder / name, std::ios::binary) << bytes;
}

class GoldenGallery : public PageTest, public ::testing::WithParamInterface<Gallery> {
 protected:
  Pages Build() {
    SetGrid("1", "2");
    const std::string names[] = {"Sunset", "Old_Bridge", "harbour"};
    for (int number = 0; number < GetParam().images; ++number) {
      const std::string name = number < 3 ? names[number] : "more_" + std::to_string(number);
      AddImage(name, "description of " + name, "about " + name);
    }
    GetParam().set(project);
    Prepare(GetParam().mode);
    return AllPages();
  }

  Pages AllPages() {
    Pages pages;
    pages["index.htm"] = generation::EncodePage(generation::BuildIndexPage(run));
    std::int32_t firstImage = 1;
    for (std::int32_t page = 1; page <= run.ThumbnailPageCount; ++page) {
      run.DirectLinksText = generation::BuildDirectLinks(run, page);
      pages[generation::ThumbnailPageName(project, page)] =
          generation::EncodePage(generation::BuildThumbnailPage(run, page, firstImage));
      firstImage += generation::ImagesOnThumbnailPage(run, firstImage);
    }
    EXPECT_EQ(firstImage, run.ImageCount + 1);
    for (std::int32_t image = 1; project.checkImageWrapperUse == 1 && image <= run.ImageCount; ++image) {
      pages[generation::WrapperPageName(project, run.ListText(image))] =
          generation::EncodePage(generation::BuildWrapperPage(run, image));
    }
    return pages;
  }
};

TEST_P(GoldenGallery, EqualsTheGoldenFiles) {
  const Pages built = Build();
  const fs::path folder = GoldenFolder() / GetParam().name;
  if (RemakesGolden()) WritePages(folder, built);
  const Pages golden = ReadPages(folder);
  for (const auto& [name, bytes] : built) {
    ASSERT_TRUE(golden.contains(name)) << "tests/golden has no " << GetParam().name << "/" << name;
    EXPECT_EQ(bytes, golden.at(name)) << GetParam().name << "/" << name;
  }
  EXPECT_EQ(built.size(), golden.size()) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(All, GoldenGallery, ::testing::ValuesIn(Galleries()),
                         [](const auto& info) { return info.param.name; });

TEST(GoldenGalleries, EveryFolderBelongsToAGallery) {
  std::set<std::string> names;
  for (const Gallery& gallery : Galleries()) names.insert(gallery.name);
  for (const auto& entry : fs::directory_iterator(GoldenFolder())) {
    if (entry.is_directory()) {
      EXPECT_TRUE(names.contains(entry.path().filename().string())) << entry.path();
    }
  }
}

}  // namespace
}  // namespace vantorium::tests
