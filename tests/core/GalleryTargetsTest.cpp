#include "core/GalleryTargets.h"
#include "core/ProjectFields.h"

#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vantorium::core {
namespace {

/// The settings of a target by name, always in the same order.
std::vector<std::string> SettingsOf(const TargetFields& target) {
  std::vector<std::string> names;
  const auto add = [&](const auto... members) { (names.emplace_back(FieldOf(members).name), ...); };
  add(target.folder, target.extension, target.colors.use, target.colors.background, target.colors.text,
      target.colors.link, target.colors.visitedLink, target.colors.activeLink, target.backdrop.source);
  add(target.codes.head, target.codes.bodyHeader, target.codes.bodyFooter, target.codes.pictureHeader,
      target.codes.pictureFooter, target.size.keepAspectRatio, target.size.setWidth, target.size.width,
      target.size.height, target.filters, target.watermark);
  add(target.captions.regular, target.captions.regularText, target.captions.placement, target.captions.alignment,
      target.captions.popup, target.captions.popupText);
  add(target.description.header, target.description.footer, target.description.placement, target.description.alignment,
      target.linkPlacement);
  for (const PageLink& link : target.links) add(link.settings);
  return names;
}

/// The name without the parts that differ between images and thumbnails.
std::string CommonName(std::string name) {
  for (const char* const word : {"ImageWrapper", "Thumbnails", "Thumbnail", "Thumb", "Images", "Image", "Page"}) {
    for (auto at = name.find(word); at != std::string::npos; at = name.find(word))
      name.erase(at, std::string(word).size());
  }
  return name;
}

TEST(GalleryTargets, PairTheSettingsThatDifferOnlyInTheirTarget) {
  const auto images = SettingsOf(kImages);
  const auto thumbnails = SettingsOf(kThumbnails);
  ASSERT_EQ(images.size(), thumbnails.size() + 1) << "only images have a link to the index";
  EXPECT_EQ(images.back(), "ImageIndexLink");
  for (std::size_t i = 0; i < thumbnails.size(); ++i) EXPECT_EQ(CommonName(images[i]), CommonName(thumbnails[i]));
}

TEST(GalleryTargets, ShareNoSetting) {
  std::set<std::string> seen;
  for (const TargetFields* target : {&kImages, &kThumbnails}) {
    for (const std::string& name : SettingsOf(*target)) EXPECT_TRUE(seen.insert(name).second) << name;
  }
}

TEST(GalleryTargets, CopiesOfGraphicsHaveDifferentNames) {
  std::set<std::string_view> names = {kTableBackdrop.name, kThumbnails.backdrop.name, kImages.backdrop.name};
  for (const PageLink& link : kPageLinks) {
    names.insert(link.graphic);
    names.insert(link.disabledGraphic);
  }
  EXPECT_EQ(names.size(), 3U + 2 * 9) << "including the empty name";
}

TEST(GalleryTargets, LinksAreFoundByKindAndByDestination) {
  const std::map<LinkKind, LinkSettings GalleryProject::*> expected = {
      {LinkKind::FirstImage, &GalleryProject::ImageFirstLink},
      {LinkKind::PreviousImage, &GalleryProject::ImagePreviousLink},
      {LinkKind::NextImage, &GalleryProject::ImageNextLink},
      {LinkKind::LastImage, &GalleryProject::ImageLastLink},
      {LinkKind::Index, &GalleryProject::ImageIndexLink},
      {LinkKind::FirstThumbnailPage, &GalleryProject::ThumbnailFirstLink},
      {LinkKind::PreviousThumbnailPage, &GalleryProject::ThumbnailPreviousLink},
      {LinkKind::NextThumbnailPage, &GalleryProject::ThumbnailNextLink},
      {LinkKind::LastThumbnailPage, &GalleryProject::ThumbnailLastLink},
  };
  for (const auto& [kind, settings] : expected) {
    const PageLink& link = PageLinkOf(kind);
    EXPECT_EQ(link.settings, settings) << FieldOf(link.settings).name;
    EXPECT_EQ(LinkTo(IsImageLink(kind) ? kImages : kThumbnails, link.goal), &link) << FieldOf(link.settings).name;
  }
  EXPECT_EQ(LinkTo(kThumbnails, LinkGoal::Index), nullptr);
}

}  // namespace
}  // namespace vantorium::core
