#pragma once

#include "image/PangoHandles.h"

namespace vantorium::image {

// Checks that text can be drawn. Each throws RuntimeFailure with a sentence for the user where Pango and Cairo would
// draw nothing or end the program.

/// Throws if letters of the font cannot be drawn: FileNotFound for null, which means that no font is installed, and
/// FileAccess for a font whose file cannot be read.
void CheckFont(PangoFont* font);

/// Throws OutOfMemory for any Cairo status but success.
void CheckDrawing(cairo_status_t status);

/// Throws FileAccess unless the machine's font settings were read.
void CheckFontSettings(bool read);

/// Throws OutOfMemory unless as many threads can be started as Pango may use at once to look for fonts.
void CheckThreadsToSpare();

}  // namespace vantorium::image
