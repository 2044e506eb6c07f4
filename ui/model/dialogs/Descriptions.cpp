#include "ui/model/dialogs/Descriptions.h"

namespace vantorium::ui {
namespace {

constexpr std::array<DescriptionKind, 2> kKinds = {{
    {"Image Description: ", core::kImages.description, &core::ImageList::SetImageDescription,
     "Image Descriptions Header and Footer", "Clear Image Descriptions",
     "This will delete the Descriptions for ALL Images in the Gallery.  Are you sure you wish to continue?"},
    {"Thumb Description: ", core::kThumbnails.description, &core::ImageList::SetThumbnailDescription,
     "Thumbnail Descriptions Header and Footer", "Clear Thumbnail Descriptions",
     "This will delete the Descriptions for ALL Thumbnails in the Gallery.  Are you sure you wish to continue?"},
}};

}  // namespace

const std::array<DescriptionKind, 2>& DescriptionKinds() {
  return kKinds;
}

std::string Descriptions::ImageName() const {
  return HasImage() ? project_.images.Entry(project_.images.Current()).ImageName : std::string();
}

std::string Descriptions::Caption(const DescriptionKind& kind) const {
  return std::string(kind.caption) + (HasImage() ? ImageName() : "(No Image selected)");
}

std::string Descriptions::Text(const DescriptionKind& kind) const {
  return HasImage() ? project_.images.Entry(project_.images.Current()).*kind.fields.text : std::string();
}

void Descriptions::SetText(const DescriptionKind& kind, std::string text) {
  if (!HasImage()) return;
  (project_.images.*kind.setText)(project_.images.Current(), std::move(text));
  project_.IsModified = true;
}

bool Descriptions::MayClearAll(const DescriptionKind& kind) {
  if (project_.images.Empty()) return false;
  return boxes_.Show(env::BoxKind::Exclamation, env::BoxButtons::YesNo, std::string(kind.clearTitle),
                     std::string(kind.clearQuestion)) == env::BoxAnswer::Yes;
}

void Descriptions::ClearAll(const DescriptionKind& kind) {
  for (std::size_t position = 1; position <= project_.images.Count(); ++position) {
    (project_.images.*kind.setText)(position, {});
  }
  project_.IsModified = true;
}

void Descriptions::TakePlacings() {
  const Placings stored = StoredPlacings();
  if (!justLoaded_ && stored == taken_ && project_.ProjectFileName == takenFromFile_) return;
  shown_ = taken_ = stored;
  takenFromFile_ = project_.ProjectFileName;
  justLoaded_ = false;
}

void Descriptions::ChoosePlacement(const DescriptionKind& kind, core::Choice placement) {
  core::Choice& shown = shown_[IndexOf(kind)].placement;
  if (shown == placement) return;
  shown = placement;
  project_.IsModified = true;
}

void Descriptions::ChooseAlignment(const DescriptionKind& kind, core::Choice alignment) {
  shown_[IndexOf(kind)].alignment = alignment;
}

core::ValueList Descriptions::Alignments(const DescriptionKind& kind) const {
  return core::AlignmentTexts(!core::IsBeside(core::DescriptionPlacement(Shown(kind).placement)));
}

void Descriptions::StorePlacings(core::ProjectEditor& editor) {
  for (const DescriptionKind& kind : kKinds) {
    editor.Set(kind.fields.placement, Shown(kind).placement);
    editor.Set(kind.fields.alignment, Shown(kind).alignment);
  }
  taken_ = shown_;
}

std::size_t Descriptions::IndexOf(const DescriptionKind& kind) {
  return static_cast<std::size_t>(&kind - kKinds.data());
}

Descriptions::Placings Descriptions::StoredPlacings() const {
  Placings stored;
  for (const DescriptionKind& kind : kKinds) {
    stored[IndexOf(kind)] = {project_.settings.*kind.fields.placement, project_.settings.*kind.fields.alignment};
  }
  return stored;
}

}  // namespace vantorium::ui
