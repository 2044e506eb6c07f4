#pragma once

#include "core/GalleryProject.h"

#include <optional>
#include <span>
#include <string_view>
#include <variant>

namespace vantorium::core {

enum class FieldKind { Text, Digits, Flag, Choice, Color, Size, Record };

/// The ranges of a Digits field: the limits of its spinner, and the bounds to which an edit is clamped.
struct DigitsRange {
  std::int32_t spinnerMinimum;
  std::int32_t spinnerMaximum;
  std::optional<std::int32_t> lowerBound;
  std::optional<std::int32_t> upperBound;
};

using ValueList = std::span<const std::string_view>;

using FieldMember =
    std::variant<std::string GalleryProject::*, std::int16_t GalleryProject::*, std::int32_t GalleryProject::*,
                 Color GalleryProject::*, image::ImageFilterSettings GalleryProject::*,
                 image::WatermarkSettings GalleryProject::*, LinkSettings GalleryProject::*>;

/// One field of GalleryProject. The alignment lists of captions and descriptions depend on the placement; `values` is
/// then the list for placement left or right.
struct ProjectField {
  std::string_view name;
  FieldKind kind;
  FieldMember member;
  ValueList values = {};
  std::optional<DigitsRange> range = std::nullopt;
  bool keptByReset = false;
  bool hiddenWhileOff = false;  ///< a Flag that project files and JSON name only while it is 1
};

/// Returns every field of GalleryProject once, in the order of the struct.
[[nodiscard]] std::span<const ProjectField> ProjectFields();

/// Returns the field of a member. Throws std::out_of_range for a member that is in no row, which is a mistake in the
/// table.
[[nodiscard]] const ProjectField& FieldOf(const FieldMember& member);

/// Returns the value of a text in a new project without a name.
[[nodiscard]] const std::string& DefaultOf(std::string GalleryProject::*field);

/// Returns whether the project's files and JSON do not name the field: an additional setting that is off.
[[nodiscard]] bool IsHidden(const GalleryProject& project, const ProjectField& field);

/// Returns the texts of an alignment list: those for a placement above or below, or those for left or right.
[[nodiscard]] ValueList AlignmentTexts(bool aboveOrBelow);

/// The fields of the structs inside GalleryProject, for code that iterates over them.
template <typename Record>
struct RecordField {
  std::string_view name;
  std::variant<std::string Record::*, std::int16_t Record::*, bool Record::*, std::uint32_t Record::*> member;
};

[[nodiscard]] std::span<const RecordField<image::ImageFilterSettings>> FilterFields();
[[nodiscard]] std::span<const RecordField<image::WatermarkSettings>> WatermarkFields();
[[nodiscard]] std::span<const RecordField<LinkSettings>> LinkFields();

}  // namespace vantorium::core
