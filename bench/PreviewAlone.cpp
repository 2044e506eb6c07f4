// Only decodes photographs as the window's preview does, for a pane of that size. A part for bench/production.
// Usage: bench_preview WIDTH HEIGHT FILE...
#include "ui/model/files/ReducedPicture.h"

#include <cstdlib>

int main(int argc, char** argv) {
  if (argc < 3) return 1;
  const vantorium::image::PictureSize pane = {.width = std::atoi(argv[1]), .height = std::atoi(argv[2])};
  for (int i = 3; i < argc; ++i) {
    vantorium::image::cDIBSection dib;
    if (!vantorium::ui::LoadReducedPicture(dib, argv[i], pane, {}, {})) return 1;
  }
  return 0;
}
