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

/// All that a run needs around it. The owner keeps these alive for the length of the run.
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
  mFTP* ftp = nullptr;  ///< the FTP client; a program that only creates and previews has none
  unsigned jobs = 1;    ///< photographs worked on at a time; what comes out is the same for every number
};

/// One run: takes the project through the phases that turn it into files and ends in one of three ways. Whatever was
/// written stays. Nothing may change the project meanwhile.
[[nodiscard]] RunEnd GenerateGallery(Project& project, const RunArguments& arguments,
                                     const RunEnvironment& environment);

}  // namespace vantorium
