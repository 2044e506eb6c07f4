#pragma once

#include "env/MessageBoxPort.h"
#include "image/cDIBSection.h"

#include <QImage>
#include <QPainter>

namespace vantorium {

// The toolkit's side of cDIBSection: what of a picture meets the screen. Positions count from the top left corner, in
// pixels of the picture; a painter on something finer has to be scaled by its caller. An empty picture shows nothing
// and takes nothing.

/// A copy of the picture, upright; null of an empty picture.
[[nodiscard]] QImage ImageOf(const cDIBSection& picture);

/// What is copied by the two operations below: a negative width or height stands for the picture's own; with one of 0
/// nothing is copied.
struct BlitArea {
  int x = 0;
  int y = 0;
  int width = -1;
  int height = -1;
};

/// Copies the area `from` of `source` into the top left corner of the picture. What of the area lies outside of either
/// is left out. Transparency is not looked at.
void LoadPictureBlt(cDIBSection& picture, const QImage& source, const BlitArea& from = {});

/// Copies the picture from (`sourceX`, `sourceY`) on to the area `to`. What would come from outside of the picture is
/// left out.
void PaintPicture(const cDIBSection& picture, QPainter& target, const BlitArea& to = {}, int sourceX = 0,
                  int sourceY = 0);

/// Makes `picture` a copy of `source`; what is transparent becomes white. False, and an empty picture, when that size
/// can't be made.
[[nodiscard]] bool CreateFromPicture(cDIBSection& picture, const QImage& source);

/// Puts a copy of the picture on the clipboard as a bitmap; true when it is there. `asDIB` asks for a form that does
/// not exist: a message box says so, and the result is false.
[[nodiscard]] bool CopyToClipboard(const cDIBSection& picture, bool asDIB, MessageBoxPort& boxes);

}  // namespace vantorium
