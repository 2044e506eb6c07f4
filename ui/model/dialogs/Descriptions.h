#pragma once

#include "core/GalleryTargets.h"
#include "core/Project.h"
#include "core/ProjectEditor.h"
#include "core/ProjectFields.h"
#include "env/MessageBoxPort.h"

#include <array>
#include <string>
#include <string_view>

namespace vantorium::ui {

/// The differences between descriptions of images and of thumbnails.
struct DescriptionKind {
  std::string_view caption;  ///< of the frame around the text, before the image's name
  core::DescriptionFields fields;
  void (core::ImageList::*setText)(std::size_t position, std::string text);
  std::string_view headerFooterTitle;
  std::string_view clearTitle;
  std::string_view clearQuestion;
};

inline constexpr std::size_t kImageDescriptions = 0;
inline constexpr std::size_t kThumbnailDescriptions = 1;
[[nodiscard]] const std::array<DescriptionKind, 2>& DescriptionKinds();

/// The window that edits the descriptions of the list's current image and the settings that all descriptions share.
/// Texts are always those of the project. The lists of placements and alignments belong to the window until they are
/// stored: they are taken from the project when the window appears, and stored when it closes.
class Descriptions {
 public:
  struct Placing {
    core::Choice placement = 0;
    core::Choice alignment = 0;
    bool operator==(const Placing&) const = default;
  };

  Descriptions(core::Project& project, env::MessageBoxPort& boxes) : project_(project), boxes_(boxes) {}

  [[nodiscard]] bool HasImage() const { return project_.images.Current() != 0; }
  /// Name of the current image, "" for none.
  [[nodiscard]] std::string ImageName() const;
  /// Caption of the frame around the text.
  [[nodiscard]] std::string Caption(const DescriptionKind& kind) const;
  /// The current image's description, "" without an image.
  [[nodiscard]] std::string Text(const DescriptionKind& kind) const;
  /// Does nothing without an image.
  void SetText(const DescriptionKind& kind, std::string text);

  /// Asks the user to confirm. Returns false without asking if the list is empty.
  [[nodiscard]] bool MayClearAll(const DescriptionKind& kind);
  /// Empties the descriptions of every image.
  void ClearAll(const DescriptionKind& kind);

  /// Call when the window appears or follows the list. Takes the project's placements if the window was closed since
  /// the last call, if the project is a different one, or if its placements have changed.
  void TakePlacings();
  /// Call when the window disappears.
  void Disappear() { justLoaded_ = true; }
  [[nodiscard]] const Placing& Shown(const DescriptionKind& kind) const { return shown_[IndexOf(kind)]; }
  /// A different placement marks the project as modified; the alignment keeps its index.
  void ChoosePlacement(const DescriptionKind& kind, core::Choice placement);
  void ChooseAlignment(const DescriptionKind& kind, core::Choice alignment);
  [[nodiscard]] bool IsAlignmentEnabled(const DescriptionKind& kind) const {
    return core::DescriptionPlacement(Shown(kind).placement) != core::Placement::None;
  }
  [[nodiscard]] core::ValueList Alignments(const DescriptionKind& kind) const;
  /// Whether the window is open with placements that differ from the project's.
  [[nodiscard]] bool HasUnstoredPlacings() const { return !justLoaded_ && shown_ != StoredPlacings(); }
  void StorePlacings(core::ProjectEditor& editor);

 private:
  using Placings = std::array<Placing, 2>;

  [[nodiscard]] static std::size_t IndexOf(const DescriptionKind& kind);
  [[nodiscard]] Placings StoredPlacings() const;

  core::Project& project_;
  env::MessageBoxPort& boxes_;
  bool justLoaded_ = true;
  Placings shown_;
  Placings taken_;             ///< the project's values when shown_ was taken from it
  std::string takenFromFile_;  ///< the project's file name at that time
};

}  // namespace vantorium::ui
