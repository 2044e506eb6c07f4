#pragma once

#include "core/generation/RunState.h"

#include <string>
#include <string_view>

namespace vantorium {

// Pieces that more than one kind of page is made of.

/// The line that names the program that made a page.
inline constexpr std::string_view kGeneratorTag =
    R"(<META NAME="GENERATOR" CONTENT="Vantorium Image Gallery Creator 3.0">)";

/// Six hexadecimal digits in capitals: red, green, blue. No "#".
[[nodiscard]] std::string ColorToHtml(Color color);

/// ` BACKGROUND="..."` for the copy of the graphic `path` that bears the name `name` in the images folder; empty
/// without a graphic.
[[nodiscard]] std::string BackdropAttribute(const RunState& run, std::string_view name, std::string_view path);

/// The five colors of a page.
struct PageColors {
  Color background;
  Color text;
  Color link;
  Color visitedLink;
  Color activeLink;
};

/// The BODY tag of a page with colors of its own.
[[nodiscard]] std::string BodyTag(const PageColors& colors, std::string_view backdropAttribute);
/// The BODY tag of a page that leaves the colors to the browser. Its blanks stand with a backdrop and without.
[[nodiscard]] std::string BodyTag(std::string_view backdropAttribute);

/// The tag that makes the browser go on to `target` after `delay` seconds.
[[nodiscard]] std::string RefreshTag(std::string_view delay, std::string_view target);

}  // namespace vantorium
