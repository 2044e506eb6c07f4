#pragma once

#include "core/ProjectEditor.h"

#include <span>
#include <string>
#include <string_view>

namespace vantorium {

// The names of a gallery's files, folders and frames, as their two dialogs edit them.

/// A name and the control that edits it.
struct NameField {
  std::string_view control;
  std::string GalleryProject::*field;
  bool isExtension = false;
  std::span<const std::string_view> offers = {};  ///< what the control lists; other texts can be typed
};

/// Folders, prefixes and extensions.
[[nodiscard]] std::span<const NameField> FileNameFields();
/// The frames' names.
[[nodiscard]] std::span<const NameField> FrameNameFields();

/// What a key types into the name's box: an underscore for a blank, and in an extension for a point too.
[[nodiscard]] std::string NameKey(const NameField& name, const std::string& key);

/// The name as its box shows it: an extension without its point.
[[nodiscard]] std::string ShownName(const NameField& name, const GalleryProject& project);
/// Stores what the box holds, a point being put in front of an extension. The same name again is no change.
void StoreName(const NameField& name, const std::string& shown, ProjectEditor& editor);
/// A box was edited whose name is stored later: the project counts as changed from now on.
void MarkEdited(const NameField& name, ProjectEditor& editor);

}  // namespace vantorium
