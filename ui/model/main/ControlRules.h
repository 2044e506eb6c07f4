#pragma once

#include "core/GalleryProject.h"

#include <span>
#include <string_view>

namespace vantorium::ui {

// How the settings affect the controls that show them. A window walks these tables after each edit.

enum class ControlProperty { Visible, Enabled };

/// A control that is visible or enabled only while a condition holds.
struct ControlRule {
  std::string_view control;  ///< its object name
  ControlProperty property;
  bool (*holds)(const core::GalleryProject& project);
};

/// Returns all rules. A control appears at most once for each property.
[[nodiscard]] std::span<const ControlRule> ControlRules();

/// A label whose text names the unit of a setting.
struct UnitLabel {
  std::string_view control;
  std::string_view inPercent;
  std::string_view inPixels;
  core::Flag core::GalleryProject::*isPercent;
};

[[nodiscard]] std::span<const UnitLabel> UnitLabels();

/// A list of a caption's alignments, which depends on its placement; the list's index is kept while its texts change.
struct AlignmentList {
  core::Choice core::GalleryProject::*alignment;
  core::Choice core::GalleryProject::*placement;
};

/// Returns the alignment lists of the captions.
[[nodiscard]] std::span<const AlignmentList> AlignmentLists();

/// Whether the list shows the texts for a placement above or below.
[[nodiscard]] bool IsAboveOrBelow(const AlignmentList& list, const core::GalleryProject& project);

/// Returns the number of the picture of the gallery's layout, from 1.
[[nodiscard]] int LayoutPicture(const core::GalleryProject& project);

}  // namespace vantorium::ui
