#pragma once

#include "core/GalleryProject.h"
#include "core/PageColors.h"

namespace vantorium {

// Sections of the project file that occur twice, with the fields of each occurrence.

/// The CAPTION elements of the images or of the thumbnails.
struct CaptionFields {
  Flag GalleryProject::*regular;
  std::string GalleryProject::*regularText;
  Choice GalleryProject::*placement;
  Choice GalleryProject::*alignment;
  Flag GalleryProject::*popup;
  std::string GalleryProject::*popupText;
};
inline constexpr CaptionFields kImageCaptions = {&GalleryProject::checkCaptionsImagesRegular,
                                                 &GalleryProject::ImageRegularCaption,
                                                 &GalleryProject::comboCaptionsImagesRegularPlacement,
                                                 &GalleryProject::comboCaptionsImagesRegularAlignment,
                                                 &GalleryProject::checkCaptionsImagesPopup,
                                                 &GalleryProject::ImagePopupCaption};
inline constexpr CaptionFields kThumbnailCaptions = {&GalleryProject::checkCaptionsThumbnailsRegular,
                                                     &GalleryProject::ThumbnailRegularCaption,
                                                     &GalleryProject::comboCaptionsThumbnailsRegularPlacement,
                                                     &GalleryProject::comboCaptionsThumbnailsRegularAlignment,
                                                     &GalleryProject::checkCaptionsThumbnailsPopup,
                                                     &GalleryProject::ThumbnailPopupCaption};

/// DESCRIPTIONHEADER and DESCRIPTIONFOOTER.
struct DescriptionFrameFields {
  std::string GalleryProject::*header;
  std::string GalleryProject::*footer;
  Choice GalleryProject::*placement;
  Choice GalleryProject::*alignment;
};
inline constexpr DescriptionFrameFields kImageDescriptionFrame = {
    &GalleryProject::textHeader, &GalleryProject::textFooter, &GalleryProject::comboImageDescriptionPlacement,
    &GalleryProject::comboImageDescriptionAlignment};
inline constexpr DescriptionFrameFields kThumbnailDescriptionFrame = {
    &GalleryProject::textThumbHeader, &GalleryProject::textThumbFooter,
    &GalleryProject::comboThumbnailDescriptionPlacement, &GalleryProject::comboThumbnailDescriptionAlignment};

/// SIZE.
struct SizeFields {
  Flag GalleryProject::*keepAspectRatio;
  Flag GalleryProject::*setWidth;
  Digits GalleryProject::*width;
  Digits GalleryProject::*height;
};
inline constexpr SizeFields kImageSize = {
    &GalleryProject::checkImageWrapperImageKeepAspectRatio, &GalleryProject::checkImageWrapperImageSetWidth,
    &GalleryProject::textImageWrapperImageWidth, &GalleryProject::textImageWrapperImageHeight};
inline constexpr SizeFields kThumbnailSize = {
    &GalleryProject::checkThumbnailsImageKeepAspectRatio, &GalleryProject::checkThumbnailsImageSetWidth,
    &GalleryProject::textThumbnailsImageWidth, &GalleryProject::textThumbnailsImageHeight};

/// The colors of a page, in the order of the file.
struct ColorAttribute {
  const char* attribute;
  Color GalleryProject::*PageColorFields::*color;
};
inline constexpr ColorAttribute kColorAttributes[] = {{"BGCOLOR", &PageColorFields::background},
                                                      {"TEXT", &PageColorFields::text},
                                                      {"LINK", &PageColorFields::link},
                                                      {"ALINK", &PageColorFields::activeLink},
                                                      {"VLINK", &PageColorFields::visitedLink}};

/// An element that holds a multi-line text.
struct TextElement {
  const char* element;
  std::string GalleryProject::*text;
};
inline constexpr TextElement kThumbnailPageTexts[] = {{"HEAD", &GalleryProject::ThumbnailPageHeadCode},
                                                      {"HEADER", &GalleryProject::ThumbnailPageBodyHeader},
                                                      {"FOOTER", &GalleryProject::ThumbnailPageBodyFooter}};
inline constexpr TextElement kThumbnailFrameTexts[] = {{"THUMBNAILHEADER", &GalleryProject::ThumbnailHeader},
                                                       {"THUMBNAILFOOTER", &GalleryProject::ThumbnailFooter}};
inline constexpr TextElement kImagePageTexts[] = {{"HEAD", &GalleryProject::ImagePageHeadCode},
                                                  {"HEADER", &GalleryProject::ImagePageBodyHeader},
                                                  {"FOOTER", &GalleryProject::ImagePageBodyFooter},
                                                  {"IMAGEHEADER", &GalleryProject::ImageHeader},
                                                  {"IMAGEFOOTER", &GalleryProject::ImageFooter}};

/// A link in PAGELINKS; `disabledAttribute` is null for the one without a disabled image.
struct LinkElement {
  const char* element;
  const char* disabledAttribute;
  LinkSettings GalleryProject::*link;
};
inline constexpr LinkElement kThumbnailPageLinks[] = {
    {"FIRST", "FIRSTIMAGE", &GalleryProject::ThumbnailFirstLink},
    {"LAST", "LASTIMAGE", &GalleryProject::ThumbnailLastLink},
    {"PREVIOUS", "FIRSTIMAGE", &GalleryProject::ThumbnailPreviousLink},
    {"NEXT", "LASTIMAGE", &GalleryProject::ThumbnailNextLink}};
inline constexpr LinkElement kImagePageLinks[] = {{"FIRST", "FIRSTIMAGE", &GalleryProject::ImageFirstLink},
                                                  {"LAST", "LASTIMAGE", &GalleryProject::ImageLastLink},
                                                  {"PREVIOUS", "FIRSTIMAGE", &GalleryProject::ImagePreviousLink},
                                                  {"NEXT", "LASTIMAGE", &GalleryProject::ImageNextLink},
                                                  {"INDEX", nullptr, &GalleryProject::ImageIndexLink}};

}  // namespace vantorium
