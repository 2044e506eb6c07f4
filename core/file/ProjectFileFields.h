#pragma once

#include "core/GalleryTargets.h"

namespace vantorium {

// The names that the project file has for the settings of both targets, in the order of the file.

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

}  // namespace vantorium
