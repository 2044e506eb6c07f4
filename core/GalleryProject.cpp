#include "core/GalleryProject.h"

#include "core/ProjectFields.h"
#include "env/Numbers.h"
#include "env/RuntimeFailure.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include <fmt/format.h>

namespace vantorium::core {

const char kThumbnailPageCentringHeader[] =
    "<!-- This code is used to center the contents of the thumbnail page vertically -->\r\n"
    "<TABLE WIDTH=\"100%\" HEIGHT=\"100%\">\r\n"
    "<TR>\r\n"
    "<TD VALIGN=\"CENTER\">";

const char kImagePageCentringHeader[] =
    "<!-- This code is used to center the contents of the image wrapper vertically and horizontally -->\r\n"
    "<TABLE WIDTH=\"100%\" HEIGHT=\"100%\">\r\n"
    "<TR>\r\n"
    "<TD ALIGN=\"CENTER\" VALIGN=\"CENTER\">";

const char kCentringFooter[] =
    "</TD>\r\n"
    "</TR>\r\n"
    "</TABLE>";

void ResetToDefaults(GalleryProject& project, const std::string& projectName) {
  GalleryProject fresh;
  fresh.textGalleryTitle = projectName;
  for (const ProjectField& field : ProjectFields()) {
    if (!field.keptByReset) continue;
    std::visit([&](auto member) { fresh.*member = project.*member; }, field.member);
  }
  project = std::move(fresh);
}

image::Corrections CorrectionsOf(const GalleryProject& project) {
  return {.upright = IsOn(project.checkImagesUpright), .trueColors = IsOn(project.checkImagesTrueColors)};
}

std::int32_t ThumbnailsPerPage(const GalleryProject& project) {
  const double rows = env::ParseNumber(project.textThumbnailsTableRows).value_or(0);
  const double columns = env::ParseNumber(project.textThumbnailsTableColumns).value_or(0);
  // Larger products than any list can hold are clamped.
  return static_cast<std::int32_t>(
      std::clamp<double>(env::RoundHalfEven(rows * columns), 0, std::numeric_limits<std::int32_t>::max()));
}

std::int32_t ThumbnailPageCount(const GalleryProject& project, std::int32_t imageCount) {
  const std::int32_t perPage = ThumbnailsPerPage(project);
  if (perPage == 0) return 0;
  return imageCount / perPage + (imageCount % perPage != 0 ? 1 : 0);
}

std::string ColorToHex(Color color) {
  return fmt::format("{:06X}", color);
}

Color HexToColor(const std::string& text) {
  Color color = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), color, 16);
  if (error == std::errc::result_out_of_range) throw env::RuntimeFailure(env::FailureKind::Overflow);
  if (error != std::errc() || end != text.data() + text.size())
    throw env::RuntimeFailure(env::FailureKind::TypeMismatch);
  return color;
}

}  // namespace vantorium::core
