#pragma once

#include "image/TextRaster.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantorium {

/// The lines that a text is drawn as, without their breaks: valid UTF-8, with blanks for control characters. An empty
/// text has none; a break at the very end begins none. TextForm::Line gives one line with a blank for each break.
[[nodiscard]] std::vector<std::string> LinesOfText(std::string_view text, TextForm form);

}  // namespace vantorium
