#pragma once

#include "image/PangoHandles.h"

namespace vantorium {

// What keeps texts from being drawn. Each throws RuntimeFailure with a sentence for the user; the libraries would draw
// nothing, or end the program.

/// Throws unless letters of the font can be drawn: FileNotFound for null, which stands for a machine without any font,
/// and FileAccess for a font whose file can't be read.
void CheckFont(PangoFont* font);

/// Throws OutOfMemory for whatever Cairo says but that all is well.
void CheckDrawing(cairo_status_t status);

/// Throws FileAccess unless the machine's font settings came to be.
void CheckFontSettings(bool read);

/// Throws OutOfMemory unless as many threads can be started as Pango may look for fonts on at once.
void CheckThreadsToSpare();

}  // namespace vantorium
