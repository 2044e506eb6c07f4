#pragma once

#include "core/GalleryTargets.h"
#include "core/ImageListOperations.h"
#include "core/MovedFolders.h"
#include "core/Project.h"
#include "core/ProjectEditor.h"
#include "core/file/ProjectReadResult.h"
#include "env/EventLoop.h"
#include "env/PathMap.h"

#include <string>
#include <vector>

#include <pugixml.hpp>

namespace vantorium::core {

// Read the sections of the project file into the settings and the images. A failed read keeps what it has read so far.
// A value that cannot be converted throws RuntimeFailure.

/// LAYOUT in `gallery`, with the slide show.
[[nodiscard]] ReadResult ReadLayout(pugi::xml_node gallery, ProjectEditor& editor);

/// IMAGES: the images, their captions, the header and footer of their descriptions, their size and filters. If `list`
/// is null, the images are left out. The event loop gets a turn every 100 images.
[[nodiscard]] ReadResult ReadImages(pugi::xml_node images, ProjectEditor& editor, ImageListOperations* list,
                                    env::EventLoop& events);

/// The photographs in IMAGES whose paths have no place on this system, as path text.
[[nodiscard]] std::vector<std::string> SourcesWithoutPlace(pugi::xml_node images, const env::PathMap& paths);
/// Replaces their paths by those where their folders are now. Returns whether any was replaced.
[[nodiscard]] bool ReplaceSources(pugi::xml_node images, const std::vector<MovedFolder>& folders,
                                  const env::PathMap& paths);

/// THUMBNAILS: the descriptions of the thumbnails, left out if `list` is null, and the rest as for the images. The
/// event loop gets a turn every 100 thumbnails.
[[nodiscard]] ReadResult ReadThumbnails(pugi::xml_node thumbnails, ProjectEditor& editor, ImageList* list,
                                        env::EventLoop& events);

/// The FILTER elements of a MODIFY, including the watermark.
void ReadFilters(pugi::xml_node modify, ProjectEditor& editor, const TargetFields& target);

/// THUMBNAILPAGE and IMAGEPAGE with their links.
[[nodiscard]] ReadResult ReadThumbnailPage(pugi::xml_node page, ProjectEditor& editor);
[[nodiscard]] ReadResult ReadImagePage(pugi::xml_node page, ProjectEditor& editor);

/// The links in a PAGELINKS, and their placement.
void ReadThumbnailPageLinks(pugi::xml_node links, ProjectEditor& editor);
void ReadImagePageLinks(pugi::xml_node links, ProjectEditor& editor);

}  // namespace vantorium::core
