#pragma once

#include "core/GalleryProject.h"

#include <span>
#include <string_view>

namespace vantorium {

// What the settings make of the controls that show them. A window walks these tables after each edit.

enum class ControlProperty { Visible, Enabled };

/// A control that can be seen, or used, only while something holds.
struct ControlRule {
  std::string_view control;  ///< its object name
  ControlProperty property;
  bool (*holds)(const GalleryProject& project);
};

/// Every control, at most once for each property.
[[nodiscard]] std::span<const ControlRule> ControlRules();

/// A label whose text says in which unit a setting is.
struct UnitLabel {
  std::string_view control;
  std::string_view inPercent;
  std::string_view inPixels;
  Flag GalleryProject::*isPercent;
};

[[nodiscard]] std::span<const UnitLabel> UnitLabels();

/// A list of alignments, which depends on a placement; the list's index is kept while its texts change.
struct AlignmentList {
  Choice GalleryProject::*alignment;
  Choice GalleryProject::*placement;
  Choice firstAboveOrBelow;  ///< the placements from this one on are above and below
};

/// Those of the captions.
[[nodiscard]] std::span<const AlignmentList> AlignmentLists();

/// Whether the list has the texts for a placement above or below.
[[nodiscard]] bool IsAboveOrBelow(const AlignmentList& list, const GalleryProject& project);

/// From 1 on, the picture of the gallery's layout.
[[nodiscard]] int LayoutPicture(const GalleryProject& project);

}  // namespace vantorium
