#pragma once

#include "core/GalleryTargets.h"
#include "core/file/ProjectFileNames.h"

#include <variant>

namespace vantorium::core {

// The names that the project file has for settings. Each list is in the order of the file; writer and reader walk it.

/// An attribute that is written and read as its setting's kind says: a flag as a number, digits as a whole number, a
/// text as it is, a choice as one of `words`. An absent attribute leaves the setting unchanged.
struct PlainAttribute {
  const char* attribute;
  std::variant<std::string GalleryProject::*, std::int16_t GalleryProject::*> field;
  FileWords words = {};
};
inline constexpr PlainAttribute kLayoutAttributes[] = {{"RESIZABLE", &GalleryProject::checkGalleryFramesResizable},
                                                       {"BORDERS", &GalleryProject::checkGalleryFramesDisplayBorders}};
inline constexpr PlainAttribute kSlideShowAttributes[] = {
    {"FIRSTSLIDE", &GalleryProject::comboGallerySlideShowBeginWith, kFirstSlideWords},
    {"NEXTSLIDE", &GalleryProject::comboGallerySlideShowActionAfterImage, kNextSlideWords},
    {"STARTOVER", &GalleryProject::comboGallerySlideShowStartOverWith, kStartOverWords}};
inline constexpr PlainAttribute kArrangementAttributes[] = {
    {"BORDER", &GalleryProject::textThumbnailsTableBorder},
    {"CELLSPACING", &GalleryProject::textThumbnailsTableCellSpacing},
    {"CELLPADDING", &GalleryProject::textThumbnailsTableCellPadding}};

// The names of the settings of both targets.

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
  std::string GalleryProject::*CodeFields::*text;
};
inline constexpr TextElement kPageTexts[] = {
    {"HEAD", &CodeFields::head}, {"HEADER", &CodeFields::bodyHeader}, {"FOOTER", &CodeFields::bodyFooter}};
inline constexpr TextElement kImageTexts[] = {{"IMAGEHEADER", &CodeFields::pictureHeader},
                                              {"IMAGEFOOTER", &CodeFields::pictureFooter}};
inline constexpr TextElement kThumbnailTexts[] = {{"THUMBNAILHEADER", &CodeFields::pictureHeader},
                                                  {"THUMBNAILFOOTER", &CodeFields::pictureFooter}};

/// A link in PAGELINKS; `disabledAttribute` is null for the one without a disabled image.
struct LinkElement {
  const char* element;
  const char* disabledAttribute;
  LinkGoal goal;
};
inline constexpr LinkElement kLinkElements[] = {{"FIRST", "FIRSTIMAGE", LinkGoal::First},
                                                {"LAST", "LASTIMAGE", LinkGoal::Last},
                                                {"PREVIOUS", "FIRSTIMAGE", LinkGoal::Previous},
                                                {"NEXT", "LASTIMAGE", LinkGoal::Next},
                                                {"INDEX", nullptr, LinkGoal::Index}};

}  // namespace vantorium::core
