#pragma once

#include "core/Choices.h"
#include "image/Corrections.h"
#include "image/ImageFilterSettings.h"
#include "image/WatermarkSettings.h"

#include <cstdint>
#include <string>

namespace vantorium::core {

using Color = std::uint32_t;  ///< 0x00BBGGRR
using Digits = std::string;   ///< a decimal number as typed; may be empty during editing

/// One page link.
struct LinkSettings {
  std::string textLinkLabel;            ///< empty: no text form
  std::string textLinkGraphic;          ///< path of the link's image, empty: no graphic form
  std::string textLinkGraphicDisabled;  ///< path of the image for the page where the link leads nowhere
};

extern const char kThumbnailPageCentringHeader[];
extern const char kImagePageCentringHeader[];
extern const char kCentringFooter[];

/// All settings of one gallery except its images, with the values of a new project. A field that a control of a window
/// edits has the control's name. Multi-line texts hold CR LF. Set fields through ProjectEditor, which applies the rules
/// between them; ProjectFields lists them all for code that iterates over them.
struct GalleryProject {  // NOLINT(clang-analyzer-optin.performance.Padding): the order of the settings is given
  // Gallery
  std::string textGalleryTitle;  ///< in a new project, the project's name
  std::string GalleryHeadCode;   ///< code in the HEAD section of the index page
  std::string GalleryInfoText;   ///< the "About this Gallery..." text
  Choice comboGalleryLayoutType = NumberOf(GalleryLayout::SingleFrame);
  Flag checkGalleryFrameSizeInPercent = kOff;
  Digits textGalleryFrameSize = "200";  ///< pixels, or percent
  Choice comboGalleryFrameSizingPriority = NumberOf(SizedFrame::Thumbnails);
  std::int32_t ThumbnailFrameSize = 200;  ///< last value stored by textGalleryFrameSize
  std::int32_t ImageFrameSize = 0;
  Flag checkGalleryFramesResizable = kOff;
  Flag checkGalleryFramesDisplayBorders = kOff;
  std::string textThumbnailFrameName = "thumb_frame";
  std::string comboImageFrameName = "_self";  ///< name of the image frame, or a browser target
  Flag checkGallerySlideShow = kOff;
  Choice comboGallerySlideShowBeginWith = NumberOf(SlideShowBegin::FirstImage);
  Flag checkGallerySlideShowAutoStart = kOn;
  Digits textGallerySlideShowAutoStartDelay = "10";  ///< seconds
  Choice comboGallerySlideShowActionAfterImage = NumberOf(SlideShowAction::NextImage);
  Choice comboGallerySlideShowStartOverWith = NumberOf(SlideShowStartOver::FirstImage);
  Digits textGallerySlideShowDelay = "5";  ///< seconds

  // Paths and file names
  std::string textImageSettingsSubFolder = "Images";
  std::string textThumbnailImageSettingsSubFolder = "Thumbs";
  std::string textThumbnailImageSettingsFilePrefix = "thumb_";
  std::string textThumbnailPageSettingsFilePrefix = "thumbpage_";
  std::string comboThumbnailPageSettingsFileExtension = ".htm";  ///< with its dot
  std::string comboImageWrapperSettingsFileExtension = ".htm";   ///< with its dot

  // Images and their wrapper pages
  Choice comboImagesSortingOrder = NumberOf(SortingOrder::Unsorted);
  Flag checkImageWrapperUse = kOn;
  std::string ImagePageHeadCode;
  std::string ImagePageBodyHeader = kImagePageCentringHeader;
  std::string ImagePageBodyFooter = kCentringFooter;
  std::string ImageHeader;
  std::string ImageFooter;
  std::string textImageWrapperBackdrop;  ///< path of the backdrop image
  Flag checkImageWrapperSetColors = kOff;
  Color ImagePageBgColor = 0xFFFFFF;
  Color ImagePageTextColor = 0x000000;
  Color ImagePageLinkColor = 0xA00000;
  Color ImagePageVLinkColor = 0xA00000;
  Color ImagePageALinkColor = 0x0000FF;
  Flag checkImageWrapperImageKeepSize = kOff;
  Flag checkImageWrapperImagePhysicalResize = kOn;  ///< on: new files are made at this size, off: the browser scales
  Flag checkImageWrapperImageKeepAspectRatio = kOn;
  Flag checkImageWrapperImageSetWidth = kOff;  ///< if the aspect ratio is kept: the width is given, not the height
  Flag checkImageWrapperImageSizesInPercent = kOff;
  Digits textImageWrapperImageWidth = "400";
  Digits textImageWrapperImageHeight = "300";
  image::ImageFilterSettings ImageFilters;
  image::WatermarkSettings ImageWatermark = {.textWatermark = "SAMPLE"};

  // Thumbnails and their pages
  std::string ThumbnailPageHeadCode;
  std::string ThumbnailPageBodyHeader = kThumbnailPageCentringHeader;
  std::string ThumbnailPageBodyFooter = kCentringFooter;
  std::string ThumbnailHeader;
  std::string ThumbnailFooter;
  std::string textThumbnailsPageBackdrop;
  Flag checkThumbnailsPageSetColors = kOff;
  Color ThumbnailPageBgColor = 0xFFFFFF;
  Color ThumbnailPageTextColor = 0x000000;
  Color ThumbnailPageLinkColor = 0xA00000;
  Color ThumbnailPageVLinkColor = 0xA00000;
  Color ThumbnailPageALinkColor = 0x0000FF;
  Digits textThumbnailsTableRows = "5";
  Digits textThumbnailsTableColumns = "5";
  Digits textThumbnailsTableBorder = "0";
  Digits textThumbnailsTableCellSpacing = "2";
  Digits textThumbnailsTableCellPadding = "0";
  Choice comboThumbnailsTableAlignment = NumberOf(TableAlignment::Center);
  std::string textThumbnailsTableBackdrop;
  Flag checkThumbnailsTableUseBGColor = kOff;
  Color btnThumbnailsTableBGColor = 0x000000;
  Flag checkThumbnailsImageKeepAspectRatio = kOff;
  Flag checkThumbnailsImageSetWidth = kOff;
  Digits textThumbnailsImageWidth = "60";
  Digits textThumbnailsImageHeight = "60";
  image::ImageFilterSettings ThumbnailFilters;
  image::WatermarkSettings ThumbnailWatermark = {.textWatermark = "THUMB", .FontSize = 14};

  // Captions
  Flag checkCaptionsImagesRegular = kOff;
  std::string ImageRegularCaption;
  Choice comboCaptionsImagesRegularPlacement = CaptionNumberOf(Placement::Below);
  Choice comboCaptionsImagesRegularAlignment = NumberOf(Alignment::End);
  Flag checkCaptionsImagesPopup = kOff;
  std::string ImagePopupCaption;
  Flag checkCaptionsThumbnailsRegular = kOff;
  std::string ThumbnailRegularCaption;
  Choice comboCaptionsThumbnailsRegularPlacement = CaptionNumberOf(Placement::Below);
  Choice comboCaptionsThumbnailsRegularAlignment = NumberOf(Alignment::Center);
  Flag checkCaptionsThumbnailsPopup = kOff;
  std::string ThumbnailPopupCaption;

  // Descriptions
  std::string textHeader;  ///< precedes every image description
  std::string textFooter;
  Choice comboImageDescriptionPlacement = NumberOf(Placement::None);
  Choice comboImageDescriptionAlignment = NumberOf(Alignment::Start);
  std::string textThumbHeader;  ///< precedes every thumbnail description
  std::string textThumbFooter;
  Choice comboThumbnailDescriptionPlacement = NumberOf(Placement::None);
  Choice comboThumbnailDescriptionAlignment = NumberOf(Alignment::Start);

  // Page links
  Flag checkPageLinksThumbnailDirectLinks = kOff;
  Digits textPageLinksThumbnailMaxDirectLinks = "0";  ///< 0 means all
  Choice comboPageLinksThumbnailLinkPlacement = NumberOf(LinkPlacement::Above);
  LinkSettings ThumbnailFirstLink = {"FIRST", "", ""};
  LinkSettings ThumbnailLastLink = {"LAST", "", ""};
  LinkSettings ThumbnailPreviousLink = {"BACK", "", ""};
  LinkSettings ThumbnailNextLink = {"NEXT", "", ""};
  Choice comboPageLinksImageLinkPlacement = NumberOf(LinkPlacement::Below);
  LinkSettings ImageFirstLink = {"FIRST", "", ""};
  LinkSettings ImageLastLink = {"LAST", "", ""};
  LinkSettings ImagePreviousLink = {"BACK", "", ""};
  LinkSettings ImageNextLink = {"NEXT", "", ""};
  LinkSettings ImageIndexLink = {"INDEX", "", ""};  ///< has no disabled image

  // Photographs
  Flag checkImagesUpright = 0;     ///< 1: those that are stored lying are turned as they say
  Flag checkImagesTrueColors = 0;  ///< 1: colors are converted to sRGB from the profile of each
};

/// Returns what the project has corrected in its photographs.
[[nodiscard]] image::Corrections CorrectionsOf(const GalleryProject& project);

/// Sets every field to its value in a new project named `projectName`, except the fields that a reset keeps.
void ResetToDefaults(GalleryProject& project, const std::string& projectName);

/// Returns the number of thumbnail pages for `imageCount` images: `imageCount` divided by rows times columns, rounded
/// up; 0 if that product is 0. Rows and columns that are not numbers count as 0.
[[nodiscard]] std::int32_t ThumbnailPageCount(const GalleryProject& project, std::int32_t imageCount);

/// Returns rows times columns, rounded half to even, at least 0.
[[nodiscard]] std::int32_t ThumbnailsPerPage(const GalleryProject& project);

/// Returns a color as written in the project file: uppercase hexadecimal, at least 6 digits, bytes not swapped (red is
/// 0000FF).
[[nodiscard]] std::string ColorToHex(Color color);

/// Reads a hexadecimal number. Throws RuntimeFailure TypeMismatch for anything else and Overflow beyond 32 bits.
[[nodiscard]] Color HexToColor(const std::string& text);

}  // namespace vantorium::core
