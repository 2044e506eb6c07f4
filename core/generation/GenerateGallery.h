#pragma once

#include "core/Project.h"
#include "core/generation/CancelCheck.h"
#include "core/generation/RunArguments.h"
#include "core/generation/RunEnd.h"
#include "core/generation/RunHost.h"
#include "env/Clock.h"
#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/Screen.h"
#include "env/Shell.h"
#include "env/mFileFunctions.h"
#include "image/TextRaster.h"
#include "publish/mFTP.h"

namespace vantorium {

/// Everything a run needs from the program. The owner keeps these alive until the run ends.
struct RunEnvironment {
  RunHost& host;
  MessageBoxPort& boxes;
  EventLoop& loop;
  const Clock& clock;
  Shell& shell;
  const mFileFunctions& files;
  const RegionalFormats& formats;
  CancelCheck& cancel;
  const Screen& screen;
  const TextRaster& texts;
  mFTP* ftp = nullptr;  ///< null in a program that only creates and previews
  unsigned jobs = 1;    ///< photographs processed at a time; the output does not depend on it
};

/// Performs one run: takes the project through the phases that turn it into files. Returns Success, Failure or
/// Cancelled. Whatever was written stays. The project must not change during the run.
[[nodiscard]] RunEnd GenerateGallery(Project& project, const RunArguments& arguments,
                                     const RunEnvironment& environment);

}  // namespace vantorium
