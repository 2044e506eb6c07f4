#pragma once

#include "core/ProjectEditor.h"

#include <span>
#include <string>
#include <string_view>

namespace vantorium::ui {

// The names of a gallery's files, folders and frames, as their two dialogs edit them.

/// A name and the control that edits it.
struct NameField {
  std::string_view control;
  std::string core::GalleryProject::*field;
  bool isExtension = false;
  std::span<const std::string_view> offers = {};  ///< texts in the control's list; others can be typed
};

/// Folders, prefixes and extensions.
[[nodiscard]] std::span<const NameField> FileNameFields();
/// The frames' names.
[[nodiscard]] std::span<const NameField> FrameNameFields();

/// What `key` types into the box of a name: an underscore for a space and, in an extension, for a dot.
[[nodiscard]] std::string NameKey(const NameField& name, const std::string& key);

/// Returns the name as its box shows it: an extension without its dot.
[[nodiscard]] std::string ShownName(const NameField& name, const core::GalleryProject& project);
/// Stores the text of the box, with a dot before an extension. An unchanged name does not modify the project.
void StoreName(const NameField& name, const std::string& shown, core::ProjectEditor& editor);
/// Call when a box is edited whose name is stored later. Marks the project as modified.
void MarkEdited(const NameField& name, core::ProjectEditor& editor);

}  // namespace vantorium::ui
