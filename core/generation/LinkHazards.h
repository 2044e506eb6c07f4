#pragma once

#include <string>
#include <string_view>

namespace vantorium::generation {

/// What precedes a name where a page writes it.
enum class LinkStart {
  Folder,         ///< the URL of a folder
  Name,           ///< nothing: the name begins the link
  NameInRefresh,  ///< nothing, in a tag that loads the next page of a slide show too
};

/// Pages write names as they are, between quotation marks. Returns why a link with this name would lead elsewhere, or
/// an empty text if it works: by the syntax of URLs (RFC 3986) and the way browsers read attributes. `name` may have
/// folders.
[[nodiscard]] std::string WhyLinkFails(std::string_view name, LinkStart start);

}  // namespace vantorium::generation
