#pragma once

#include "core/GalleryProject.h"

namespace vantorium {

/// Edits the settings of a project the way its controls do: each Set stores the value, clamps it and runs the rules
/// that tie the field to others. Reading a project file goes through the same door, so a file can bring in nothing that
/// an edit could not. `modified` is set by every edit, whether or not the value is another one.
class ProjectEditor {
 public:
  ProjectEditor(GalleryProject& project, bool& modified) : project_(project), modified_(modified) {}

  /// A text or a Digits field. A Digits text beyond one of its bounds becomes the bound; an empty one stays empty.
  /// Throws RuntimeFailure TypeMismatch for a frame size that is no number, and then nothing is changed.
  void Set(std::string GalleryProject::*field, std::string value);
  /// A Flag or a Choice.
  void Set(std::int16_t GalleryProject::*field, std::int16_t value);
  void Set(Color GalleryProject::*field, Color value);
  void Set(LinkSettings GalleryProject::*field, LinkSettings value);
  void Set(ImageFilterSettings GalleryProject::*field, ImageFilterSettings value);
  void Set(WatermarkSettings GalleryProject::*field, WatermarkSettings value);

  [[nodiscard]] const GalleryProject& Project() const { return project_; }

 private:
  void FrameSizeEdited();

  GalleryProject& project_;
  bool& modified_;
};

/// The text of a field after an edit to `value`: in a Digits field its bound in place of a number beyond it, and
/// nothing in place of what is no number where the field can do without one.
[[nodiscard]] std::string Clamped(std::string GalleryProject::*field, std::string value);

/// The image frame's name after the layout became `layoutType`: "_self" for the single frame; for the others
/// "image_frame" in place of a browser target, and any other name as it was.
void ImageFrameNameForLayout(GalleryProject& project, Choice layoutType);

/// Repairs what an output can't do without: empty numbers and frame names get a value, and Previous and Next links
/// without a disabled image take their normal one. Runs before every save and every run. Sets `modified` when it had to
/// repair something other than a link's image.
void NormalizeForOutput(GalleryProject& project, bool& modified);

}  // namespace vantorium
