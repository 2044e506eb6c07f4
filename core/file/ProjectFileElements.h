#pragma once

#include "core/GalleryProject.h"
#include "core/ImageList.h"
#include "core/file/ProjectFileFields.h"
#include "core/file/ProjectFileNames.h"
#include "env/EventLoop.h"

#include <span>
#include <string_view>

#include <pugixml.hpp>

namespace vantorium::core {

// Builds the tree of the project file. Each function appends, so the order of calls is the order in the file.

void PutAttribute(pugi::xml_node element, const char* name, std::string_view value);
void PutAttribute(pugi::xml_node element, const char* name, std::int64_t value);
/// Writes the word of `index`, or no attribute if the index has no word.
void PutAttribute(pugi::xml_node element, const char* name, FileWords words, std::int16_t index);

/// Writes one attribute for each row.
void PutPlainAttributes(pugi::xml_node element, const GalleryProject& project, std::span<const PlainAttribute> rows);

/// Writes a text as the CDATA of its element, in more than one section if it contains "]]>".
void PutText(pugi::xml_node element, std::string_view text);
/// Adds a child that contains only the text.
pugi::xml_node PutTextElement(pugi::xml_node parent, const char* name, std::string_view text);
void PutTextElementUnlessEmpty(pugi::xml_node parent, const char* name, std::string_view text);

// The children of GALLERY. The event loop gets a turn every 100 images and thumbnails.
void PutLayout(pugi::xml_node gallery, const GalleryProject& project);
void PutImages(pugi::xml_node gallery, const GalleryProject& project, const ImageList& images, env::EventLoop& events);
void PutThumbnails(pugi::xml_node gallery, const GalleryProject& project, const ImageList& images,
                   env::EventLoop& events);
void PutThumbnailPage(pugi::xml_node gallery, const GalleryProject& project);
void PutImagePage(pugi::xml_node gallery, const GalleryProject& project);

/// The filters of MODIFY for one target.
void PutImageFilters(pugi::xml_node modify, const GalleryProject& project);
void PutThumbnailFilters(pugi::xml_node modify, const GalleryProject& project);

}  // namespace vantorium::core
