#include "core/generation/PageParts.h"

#include "env/PathText.h"

#include <fmt/format.h>

namespace vantorium {

std::string ColorToHtml(Color color) {
  return fmt::format("{:02X}{:02X}{:02X}", color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

std::string BackdropAttribute(const RunState& run, std::string_view name, std::string_view path) {
  if (path.empty()) return {};
  return fmt::format(R"( BACKGROUND="{}{}{}")", run.ImageUrlPrefix, name, GetFileExtension(path));
}

std::string BodyTag(const PageColors& colors, std::string_view backdropAttribute) {
  return fmt::format(R"(<BODY BGCOLOR="{}" TEXT="{}" LINK="{}" VLINK="{}" ALINK="{}"{}>)",
                     ColorToHtml(colors.background), ColorToHtml(colors.text), ColorToHtml(colors.link),
                     ColorToHtml(colors.visitedLink), ColorToHtml(colors.activeLink), backdropAttribute);
}

std::string BodyTag(std::string_view backdropAttribute) {
  return fmt::format("<BODY {}>", backdropAttribute);
}

std::string RefreshTag(std::string_view delay, std::string_view target) {
  return fmt::format(R"(<META HTTP-EQUIV="REFRESH" CONTENT="{}; URL={}">)", delay, target);
}

}  // namespace vantorium
