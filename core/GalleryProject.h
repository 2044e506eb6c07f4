#pragma once

#include "image/Corrections.h"
#include "image/ImageFilterSettings.h"
#include "image/WatermarkSettings.h"

#include <cstdint>
#include <string>

namespace vantorium {

using Flag = std::int16_t;    ///< 0 or 1
using Choice = std::int16_t;  ///< index into a fixed list, from 0
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
struct GalleryProject {
  // Gallery
  std::string textGalleryTitle;  ///< in a new project, the project's name
  std::string GalleryHeadCode;   ///< code in the HEAD section of the index page
  std::string GalleryInfoText;   ///< the "About this Gallery..." text
  Choice comboGalleryLayoutType = 0;
  Flag checkGalleryFrameSizeInPercent = 0;
  Digits textGalleryFrameSize = "200";         ///< pixels, or percent
  Choice comboGalleryFrameSizingPriority = 0;  ///< the frame whose size is given: 0 thumbnails, 1 image
  std::int32_t ThumbnailFrameSize = 200;       ///< last value stored by textGalleryFrameSize
  std::int32_t ImageFrameSize = 0;
  Flag checkGalleryFramesResizable = 0;
  Flag checkGalleryFramesDisplayBorders = 0;
  std::string textThumbnailFrameName = "thumb_frame";
  std::string comboImageFrameName = "_self";  ///< name of the image frame, or a browser target
  Flag checkGallerySlideShow = 0;
  Choice comboGallerySlideShowBeginWith = 1;
  Flag checkGallerySlideShowAutoStart = 1;
  Digits textGallerySlideShowAutoStartDelay = "10";  ///< seconds
  Choice comboGallerySlideShowActionAfterImage = 0;
  Choice comboGallerySlideShowStartOverWith = 1;
  Digits textGallerySlideShowDelay = "5";  ///< seconds

  // Paths and file names
  std::string textImageSettingsSubFolder = "Images";
  std::string textThumbnailImageSettingsSubFolder = "Thumbs";
  std::string textThumbnailImageSettingsFilePrefix = "thumb_";
  std::string textThumbnailPageSettingsFilePrefix = "thumbpage_";
  std::string comboThumbnailPageSettingsFileExtension = ".htm";  ///< with its dot
  std::string comboImageWrapperSettingsFileExtension = ".htm";   ///< with its dot

  // Images and their wrapper pages
  Choice comboImagesSortingOrder = 0;
  Flag checkImageWrapperUse = 1;
  std::string ImagePageHeadCode;
  std::string ImagePageBodyHeader = kImagePageCentringHeader;
  std::string ImagePageBodyFooter = kCentringFooter;
  std::string ImageHeader;
  std::string ImageFooter;
  std::string textImageWrapperBackdrop;  ///< path of the backdrop image
  Flag checkImageWrapperSetColors = 0;
  Color ImagePageBgColor = 0xFFFFFF;
  Color ImagePageTextColor = 0x000000;
  Color ImagePageLinkColor = 0xA00000;
  Color ImagePageVLinkColor = 0xA00000;
  Color ImagePageALinkColor = 0x0000FF;
  Flag checkImageWrapperImageKeepSize = 0;
  Flag checkImageWrapperImagePhysicalResize = 1;  ///< 1: new files are made at this size, 0: the browser scales
  Flag checkImageWrapperImageKeepAspectRatio = 1;
  Flag checkImageWrapperImageSetWidth = 0;  ///< if the aspect ratio is kept: 1 the width is given, 0 the height
  Flag checkImageWrapperImageSizesInPercent = 0;
  Digits textImageWrapperImageWidth = "400";
  Digits textImageWrapperImageHeight = "300";
  ImageFilterSettings ImageFilters;
  WatermarkSettings ImageWatermark = {.textWatermark = "SAMPLE"};

  // Thumbnails and their pages
  std::string ThumbnailPageHeadCode;
  std::string ThumbnailPageBodyHeader = kThumbnailPageCentringHeader;
  std::string ThumbnailPageBodyFooter = kCentringFooter;
  std::string ThumbnailHeader;
  std::string ThumbnailFooter;
  std::string textThumbnailsPageBackdrop;
  Flag checkThumbnailsPageSetColors = 0;
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
  Choice comboThumbnailsTableAlignment = 2;
  std::string textThumbnailsTableBackdrop;
  Flag checkThumbnailsTableUseBGColor = 0;
  Color btnThumbnailsTableBGColor = 0x000000;
  Flag checkThumbnailsImageKeepAspectRatio = 0;
  Flag checkThumbnailsImageSetWidth = 0;
  Digits textThumbnailsImageWidth = "60";
  Digits textThumbnailsImageHeight = "60";
  ImageFilterSettings ThumbnailFilters;
  WatermarkSettings ThumbnailWatermark = {.textWatermark = "THUMB", .FontSize = 14};

  // Captions
  Flag checkCaptionsImagesRegular = 0;
  std::string ImageRegularCaption;
  Choice comboCaptionsImagesRegularPlacement = 3;
  Choice comboCaptionsImagesRegularAlignment = 2;
  Flag checkCaptionsImagesPopup = 0;
  std::string ImagePopupCaption;
  Flag checkCaptionsThumbnailsRegular = 0;
  std::string ThumbnailRegularCaption;
  Choice comboCaptionsThumbnailsRegularPlacement = 3;
  Choice comboCaptionsThumbnailsRegularAlignment = 1;
  Flag checkCaptionsThumbnailsPopup = 0;
  std::string ThumbnailPopupCaption;

  // Descriptions
  std::string textHeader;  ///< precedes every image description
  std::string textFooter;
  Choice comboImageDescriptionPlacement = 0;
  Choice comboImageDescriptionAlignment = 0;
  std::string textThumbHeader;  ///< precedes every thumbnail description
  std::string textThumbFooter;
  Choice comboThumbnailDescriptionPlacement = 0;
  Choice comboThumbnailDescriptionAlignment = 0;

  // Page links
  Flag checkPageLinksThumbnailDirectLinks = 0;
  Digits textPageLinksThumbnailMaxDirectLinks = "0";  ///< 0 means all
  Choice comboPageLinksThumbnailLinkPlacement = 1;
  LinkSettings ThumbnailFirstLink = {"FIRST", "", ""};
  LinkSettings ThumbnailLastLink = {"LAST", "", ""};
  LinkSettings ThumbnailPreviousLink = {"BACK", "", ""};
  LinkSettings ThumbnailNextLink = {"NEXT", "", ""};
  Choice comboPageLinksImageLinkPlacement = 2;
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
[[nodiscard]] Corrections CorrectionsOf(const GalleryProject& project);

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

}  // namespace vantorium
