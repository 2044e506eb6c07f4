#pragma once

#include "core/GalleryProject.h"

namespace vantorium::core {

/// The five colors of a page.
struct PageColors {
  Color background = 0;
  Color text = 0;
  Color link = 0;
  Color visitedLink = 0;
  Color activeLink = 0;

  bool operator==(const PageColors&) const = default;
};

/// The settings that hold the colors of one kind of page.
struct PageColorFields {
  Flag GalleryProject::*use;  ///< whether the pages set these colors or leave them to the browser
  Color GalleryProject::*background;
  Color GalleryProject::*text;
  Color GalleryProject::*link;
  Color GalleryProject::*visitedLink;
  Color GalleryProject::*activeLink;
};

[[nodiscard]] inline PageColors ColorsOf(const GalleryProject& project, const PageColorFields& fields) {
  return {project.*fields.background, project.*fields.text, project.*fields.link, project.*fields.visitedLink,
          project.*fields.activeLink};
}

}  // namespace vantorium::core
