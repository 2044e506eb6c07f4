#pragma once

#include "env/MessageBoxPort.h"
#include "image/cDIBSection.h"

#include <QImage>
#include <QPainter>

namespace vantorium::ui {

// The Qt side of cDIBSection: images, painters and the clipboard. Positions are in pixels of the picture, from its top
// left corner; the caller scales a painter that has a finer unit. Painting an empty picture, or copying into one, does
// nothing.

/// Returns an upright copy of the picture; a null image if the picture is empty.
[[nodiscard]] QImage ImageOf(const image::cDIBSection& picture);

/// The area that PaintPicture and LoadPictureBlt copy. A negative width or height means the picture's own; if either is
/// 0, nothing is copied.
struct BlitArea {
  int x = 0;
  int y = 0;
  int width = -1;
  int height = -1;
};

/// Paints the picture, from (`sourceX`, `sourceY`) on, into the area `to`. Skips what lies outside of the picture.
void PaintPicture(const image::cDIBSection& picture, QPainter& target, const BlitArea& to = {}, int sourceX = 0,
                  int sourceY = 0);

// Part of the module's interface; the program itself does not call them.

/// Copies the area `from` of `source` to the picture's top left corner, clipped to both. Ignores transparency.
void LoadPictureBlt(image::cDIBSection& picture, const QImage& source, const BlitArea& from = {});

/// Makes `picture` a copy of `source`; transparent pixels become white. Returns false and leaves `picture` empty if a
/// picture of that size can't be made.
[[nodiscard]] bool CreateFromPicture(image::cDIBSection& picture, const QImage& source);

/// Puts a copy of the picture on the clipboard as a bitmap. Returns true if it is there. `asDIB` asks for a form that
/// is not supported: a message box says so, and the result is false.
[[nodiscard]] bool CopyToClipboard(const image::cDIBSection& picture, bool asDIB, env::MessageBoxPort& boxes);

}  // namespace vantorium::ui
