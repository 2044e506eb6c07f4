#include "app/batch/ProjectJson.h"

#include "core/ProjectFields.h"

#include <nlohmann/json.hpp>

namespace vantorium::batch {
namespace {

using Json = nlohmann::ordered_json;

Json Value(const std::string& text) {
  return text;
}
Json Value(std::int16_t number) {
  return number;
}
Json Value(std::int32_t number) {
  return number;
}
Json Value(std::uint32_t number) {
  return number;
}
Json Value(bool flag) {
  return core::FlagOf(flag);
}

template <typename Record>
Json Object(const Record& record, std::span<const core::RecordField<Record>> fields) {
  Json object;
  for (const auto& field : fields) {
    object[std::string(field.name)] = std::visit([&](auto member) { return Value(record.*member); }, field.member);
  }
  return object;
}

Json Value(const image::ImageFilterSettings& filters) {
  return Object(filters, core::FilterFields());
}
Json Value(const image::WatermarkSettings& watermark) {
  return Object(watermark, core::WatermarkFields());
}
Json Value(const core::LinkSettings& link) {
  return Object(link, core::LinkFields());
}

Json Settings(const core::GalleryProject& project) {
  Json object;
  for (const core::ProjectField& field : core::ProjectFields()) {
    if (core::IsHidden(project, field)) continue;
    object[std::string(field.name)] = std::visit([&](auto member) { return Value(project.*member); }, field.member);
  }
  return object;
}

Json Image(const core::ImageEntry& entry, const env::PathMap& paths) {
  Json image = {{"ImageName", entry.ImageName}, {"SourcePath", entry.SourcePath}};
  if (const auto native = paths.ToNative(entry.SourcePath)) image["native_path"] = native->string();
  image["SizeKey"] = entry.SizeKey;
  image["DateKey"] = entry.DateKey;
  image["ImageDescription"] = entry.ImageDescription;
  image["ThumbnailDescription"] = entry.ThumbnailDescription;
  return image;
}

}  // namespace

std::string ProjectAsJson(const core::Project& project, const env::PathMap& paths) {
  Json images = Json::array();
  for (std::size_t position = 1; position <= project.images.Count(); ++position) {
    images.push_back(Image(project.images.Entry(position), paths));
  }
  const auto count = static_cast<std::int32_t>(project.images.Count());
  const Json whole = {{"project", Settings(project.settings)},
                      {"images", std::move(images)},
                      {"thumbnailPageCount", core::ThumbnailPageCount(project.settings, count)}};
  return whole.dump(2, ' ', /*ensure_ascii=*/false, Json::error_handler_t::replace);
}

}  // namespace vantorium::batch
