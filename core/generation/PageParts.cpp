#include "core/generation/PageParts.h"

#include "core/Generator.h"
#include "env/PathText.h"

#include <fmt/format.h>

namespace vantorium::generation {

std::string GeneratorTag() {
  return fmt::format(R"(<META NAME="GENERATOR" CONTENT="{}">)", core::kGenerator);
}

std::string ColorToHtml(core::Color color) {
  return fmt::format("{:02X}{:02X}{:02X}", color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

std::string BackdropAttribute(const RunState& run, const core::Backdrop& backdrop) {
  const std::string& path = run.project.*backdrop.source;
  if (path.empty()) return {};
  return fmt::format(R"( BACKGROUND="{}{}{}")", run.ImageUrlPrefix, backdrop.name, env::GetFileExtension(path));
}

std::string BodyTag(const core::GalleryProject& project, const core::PageColorFields& fields,
                    std::string_view backdropAttribute) {
  if (!core::IsOn(project.*fields.use)) return fmt::format("<BODY {}>", backdropAttribute);
  const core::PageColors colors = core::ColorsOf(project, fields);
  return fmt::format(R"(<BODY BGCOLOR="{}" TEXT="{}" LINK="{}" VLINK="{}" ALINK="{}"{}>)",
                     ColorToHtml(colors.background), ColorToHtml(colors.text), ColorToHtml(colors.link),
                     ColorToHtml(colors.visitedLink), ColorToHtml(colors.activeLink), backdropAttribute);
}

std::string RefreshTag(std::string_view delay, std::string_view target) {
  return fmt::format(R"(<META HTTP-EQUIV="REFRESH" CONTENT="{}; URL={}">)", delay, target);
}

}  // namespace vantorium::generation
