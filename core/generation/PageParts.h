#pragma once

#include "core/GalleryTargets.h"
#include "core/generation/RunState.h"

#include <string>
#include <string_view>

namespace vantorium::generation {

// Pieces shared by several kinds of page.

/// Returns the line that names the program that generated a page.
[[nodiscard]] std::string GeneratorTag();

/// Returns six uppercase hexadecimal digits: red, green, blue. No "#".
[[nodiscard]] std::string ColorToHtml(core::Color color);

/// Returns ` BACKGROUND="..."` for the copy of a backdrop in the images folder; empty if the project has no such
/// backdrop.
[[nodiscard]] std::string BackdropAttribute(const RunState& run, const core::Backdrop& backdrop);

/// Returns the BODY tag of a page, with the project's colors if it sets them. Without colors the space after BODY is
/// written all the same, with and without a backdrop.
[[nodiscard]] std::string BodyTag(const core::GalleryProject& project, const core::PageColorFields& fields,
                                  std::string_view backdropAttribute);

/// The tag that makes the browser load `target` after `delay` seconds.
[[nodiscard]] std::string RefreshTag(std::string_view delay, std::string_view target);

}  // namespace vantorium::generation
