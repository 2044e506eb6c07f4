#pragma once

#include "core/generation/RunState.h"

#include <string>
#include <string_view>

namespace vantorium {

// Pieces shared by several kinds of page.

/// The line that names the program that generated a page.
inline constexpr std::string_view kGeneratorTag =
    R"(<META NAME="GENERATOR" CONTENT="Vantorium Image Gallery Creator 3.0">)";

/// Returns six uppercase hexadecimal digits: red, green, blue. No "#".
[[nodiscard]] std::string ColorToHtml(Color color);

/// Returns ` BACKGROUND="..."` for the copy of the graphic `path` in the images folder, which is called `name` there;
/// empty if `path` is empty.
[[nodiscard]] std::string BackdropAttribute(const RunState& run, std::string_view name, std::string_view path);

/// The five colors of a page.
struct PageColors {
  Color background;
  Color text;
  Color link;
  Color visitedLink;
  Color activeLink;
};

/// The BODY tag of a page with its own colors.
[[nodiscard]] std::string BodyTag(const PageColors& colors, std::string_view backdropAttribute);
/// The BODY tag of a page that leaves the colors to the browser. The space after BODY is written with and without a
/// backdrop.
[[nodiscard]] std::string BodyTag(std::string_view backdropAttribute);

/// The tag that makes the browser load `target` after `delay` seconds.
[[nodiscard]] std::string RefreshTag(std::string_view delay, std::string_view target);

}  // namespace vantorium
