#pragma once

#include "core/GalleryProject.h"

namespace vantorium::core {

/// Edits the settings of a project as its controls do: each Set stores the value, clamps it and applies the rules that
/// tie the field to others. Reading a project file uses it too, so a file can set nothing that an edit could not. Every
/// edit sets `modified`, even if the value does not change.
class ProjectEditor {
 public:
  ProjectEditor(GalleryProject& project, bool& modified) : project_(project), modified_(modified) {}

  /// A text or a Digits field. A Digits value outside its bounds becomes the nearest bound; an empty one stays empty.
  /// Throws RuntimeFailure TypeMismatch for a frame size that is not a number, and then changes nothing.
  void Set(std::string GalleryProject::*field, std::string value);
  /// A Flag or a Choice.
  void Set(std::int16_t GalleryProject::*field, std::int16_t value);
  void Set(Color GalleryProject::*field, Color value);
  void Set(LinkSettings GalleryProject::*field, LinkSettings value);
  void Set(image::ImageFilterSettings GalleryProject::*field, image::ImageFilterSettings value);
  void Set(image::WatermarkSettings GalleryProject::*field, image::WatermarkSettings value);

  [[nodiscard]] const GalleryProject& Project() const { return project_; }

 private:
  void FrameSizeEdited();

  GalleryProject& project_;
  bool& modified_;
};

/// Returns the text of a field after an edit to `value`. In a Digits field a number outside its bounds becomes the
/// bound, and text that is not a number becomes empty if the field may be empty.
[[nodiscard]] std::string Clamped(std::string GalleryProject::*field, std::string value);

/// Sets the image frame's name after the layout became `layoutType`: "_self" for the single frame; otherwise
/// "image_frame" replaces a browser target, and any other name is kept.
void ImageFrameNameForLayout(GalleryProject& project, Choice layoutType);

/// Repairs what output requires: empty numbers and frame names get a value, and Previous and Next links without a
/// disabled image use their normal one. Runs before every save and every run. Sets `modified` if anything other than a
/// link's image was repaired.
void NormalizeForOutput(GalleryProject& project, bool& modified);

}  // namespace vantorium::core
