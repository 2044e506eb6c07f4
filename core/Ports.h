#pragma once

#include "env/Clock.h"
#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/PathMap.h"
#include "env/RegionalFormats.h"
#include "env/Screen.h"
#include "env/Shell.h"
#include "env/mFileFunctions.h"
#include "image/TextRaster.h"

namespace vantorium::core {

/// What both programs need from outside. Each main chooses the real ports, a test its own; they outlive whatever holds
/// this. Structs that need more derive from it.
struct Ports {
  const env::PathMap& paths;
  const env::RegionalFormats& formats;
  const env::mFileFunctions& files;
  env::MessageBoxPort& boxes;
  env::EventLoop& loop;
  env::Shell& shell;
  const env::Clock& clock;
  const env::Screen& screen;
  const image::TextRaster& texts;
  unsigned jobs = 1;  ///< photographs processed at a time; the output does not depend on it
};

}  // namespace vantorium::core
