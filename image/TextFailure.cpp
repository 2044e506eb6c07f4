#include "image/TextFailure.h"

#include "env/RuntimeFailure.h"

#include <mutex>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include <pango/pangofc-font.h>

namespace vantorium::image {
namespace {

/// Pango starts two for each size and script in which it looks for a font; some still run when the next ones start.
constexpr int kThreadsOfPango = 8;

[[noreturn]] void Fail(env::FailureKind kind, const std::string& reason) {
  throw env::RuntimeFailure(kind, "The watermark cannot be drawn: " + reason);
}

std::string FileOf(PangoFont* font) {
  FcChar8* file = nullptr;
  FcPatternGetString(pango_fc_font_get_pattern(PANGO_FC_FONT(font)), FC_FILE, 0, &file);
  return file != nullptr ? reinterpret_cast<const char*>(file) : "";
}

/// HarfBuzz and Cairo each open the file. HarfBuzz comes first: it fails silently, while Pango prints a warning for
/// Cairo.
bool CanBeRead(PangoFont* font) {
  if (hb_face_get_glyph_count(hb_font_get_face(pango_font_get_hb_font(font))) == 0) return false;
  cairo_scaled_font_t* pens = pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(font));
  return pens != nullptr && cairo_scaled_font_status(pens) == CAIRO_STATUS_SUCCESS;
}

}  // namespace

void CheckFont(PangoFont* font) {
  if (font == nullptr) Fail(env::FailureKind::FileNotFound, "no font is installed on this computer.");
  if (!CanBeRead(font)) Fail(env::FailureKind::FileAccess, "the font file \"" + FileOf(font) + "\" cannot be read.");
}

void CheckDrawing(cairo_status_t status) {
  if (status != CAIRO_STATUS_SUCCESS)
    Fail(env::FailureKind::OutOfMemory, cairo_status_to_string(status) + std::string("."));
}

void CheckFontSettings(bool read) {
  if (!read) Fail(env::FailureKind::FileAccess, "the font settings of this computer cannot be read.");
}

void CheckThreadsToSpare() try {
  std::mutex gate;
  std::vector<std::jthread> threads;
  threads.reserve(kThreadsOfPango);
  const std::lock_guard closed(gate);  // keeps all threads running at once
  for (int i = 0; i < kThreadsOfPango; ++i) threads.emplace_back([&gate] { const std::lock_guard passed(gate); });
} catch (const std::system_error&) {
  Fail(env::FailureKind::OutOfMemory, "there is no room for the threads that fonts are looked for on.");
}

}  // namespace vantorium::image
