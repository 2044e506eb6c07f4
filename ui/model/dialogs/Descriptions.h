#pragma once

#include "core/Project.h"
#include "core/ProjectEditor.h"
#include "core/ProjectFields.h"
#include "env/MessageBoxPort.h"

#include <array>
#include <string>
#include <string_view>

namespace vantorium {

/// What descriptions of images and of thumbnails differ in.
struct DescriptionKind {
  std::string_view caption;  ///< of the frame around the text, in front of the image's name
  std::string ImageEntry::*text;
  void (ImageList::*setText)(std::size_t position, std::string text);
  std::string GalleryProject::*header;
  std::string GalleryProject::*footer;
  Choice GalleryProject::*placement;
  Choice GalleryProject::*alignment;
  std::string_view headerFooterTitle;
  std::string_view clearTitle;
  std::string_view clearQuestion;
};

inline constexpr std::size_t kImageDescriptions = 0;
inline constexpr std::size_t kThumbnailDescriptions = 1;
[[nodiscard]] const std::array<DescriptionKind, 2>& DescriptionKinds();

/// The window that edits the descriptions of the list's current image and what all descriptions have in common. Texts
/// are the project's own at every moment. The lists of placements and alignments are the window's until they are
/// stored: they are taken from the project when the window appears, and stored when it closes.
class Descriptions {
 public:
  struct Placing {
    Choice placement = 0;
    Choice alignment = 0;
    bool operator==(const Placing&) const = default;
  };

  Descriptions(Project& project, MessageBoxPort& boxes) : project_(project), boxes_(boxes) {}

  [[nodiscard]] bool HasImage() const { return project_.images.Current() != 0; }
  /// Name of the current image, "" for none.
  [[nodiscard]] std::string ImageName() const;
  /// Of the frame around the text.
  [[nodiscard]] std::string Caption(const DescriptionKind& kind) const;
  /// The current image's description, "" without an image.
  [[nodiscard]] std::string Text(const DescriptionKind& kind) const;
  /// Changes nothing without an image.
  void SetText(const DescriptionKind& kind, std::string text);

  /// Asks the user, unless the list is empty and there is nothing to do.
  [[nodiscard]] bool MayClearAll(const DescriptionKind& kind);
  /// Empties the descriptions of every image.
  void ClearAll(const DescriptionKind& kind);

  /// The window appears, or follows the list: takes the project's placements if the window was closed since it last
  /// did, or if the project is another one, or has other placements.
  void TakePlacings();
  /// The window disappears.
  void Disappear() { justLoaded_ = true; }
  [[nodiscard]] const Placing& Shown(const DescriptionKind& kind) const { return shown_[IndexOf(kind)]; }
  /// Another one marks the project as changed; the alignment keeps its index.
  void ChoosePlacement(const DescriptionKind& kind, Choice placement);
  void ChooseAlignment(const DescriptionKind& kind, Choice alignment);
  [[nodiscard]] bool IsAlignmentEnabled(const DescriptionKind& kind) const { return Shown(kind).placement != 0; }
  [[nodiscard]] ValueList Alignments(const DescriptionKind& kind) const;
  /// Whether the window is there with other placements than the project has.
  [[nodiscard]] bool HasUnstoredPlacings() const { return !justLoaded_ && shown_ != StoredPlacings(); }
  void StorePlacings(ProjectEditor& editor);

 private:
  using Placings = std::array<Placing, 2>;

  [[nodiscard]] static std::size_t IndexOf(const DescriptionKind& kind);
  [[nodiscard]] Placings StoredPlacings() const;

  Project& project_;
  MessageBoxPort& boxes_;
  bool justLoaded_ = true;
  Placings shown_;
  Placings taken_;             ///< what the project had when shown_ was taken from it
  std::string takenFromFile_;  ///< its file name then
};

}  // namespace vantorium
