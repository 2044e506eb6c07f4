#include "ui/model/main/UprightOffer.h"

#include "image/PhotographNotes.h"

#include <algorithm>

namespace vantorium::ui {
namespace {

bool Lies(const std::filesystem::path& file) {
  return image::ReadPhotographNotes(file, {.upright = true}).orientation != image::Orientation::AsStored;
}

bool AnyLies(const std::vector<std::filesystem::path>& files, const std::stop_token& stop) {
  return std::ranges::any_of(files, [&stop](const auto& file) { return !stop.stop_requested() && Lies(file); });
}

}  // namespace

bool FindsFirstLying(const LyingSearch& search, const std::stop_token& stop) {
  return AnyLies(search.added, stop) && !AnyLies(search.earlier, stop) && !stop.stop_requested();
}

void UprightOffer::BeforeAdding() {
  names_.clear();
  if (!IsOpen()) return;
  const core::ImageList& images = project_.images;
  for (std::size_t position = 1; position <= images.Count(); ++position) {
    names_.insert(images.Entry(position).ImageName);
  }
}

// Adding changes no name, and a list that is kept sorted puts new images anywhere.
std::optional<LyingSearch> UprightOffer::AfterAdding() const {
  if (!IsOpen()) return std::nullopt;
  LyingSearch search;
  const core::ImageList& images = project_.images;
  for (std::size_t position = 1; position <= images.Count(); ++position) {
    const core::ImageEntry& entry = images.Entry(position);
    const auto file = paths_.ToNative(entry.SourcePath);
    if (file) (names_.contains(entry.ImageName) ? search.earlier : search.added).push_back(*file);
  }
  if (search.added.empty()) return std::nullopt;
  return search;
}

bool UprightOffer::Ask(env::MessageBoxPort& boxes) {
  if (!IsOpen()) return false;
  asked_ = true;
  return boxes.AskYesNo("Photographs on their Side",
                        "Some of the added photographs are stored lying on their side, with a note on how to turn "
                        "them.\r\rDo you wish to turn the photographs of this gallery upright?");
}

}  // namespace vantorium::ui
