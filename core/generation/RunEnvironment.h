#pragma once

#include "core/Ports.h"
#include "core/generation/CancelCheck.h"
#include "core/generation/RunHost.h"
#include "publish/mFTP.h"

namespace vantorium {

/// Everything a run needs from the program. The owner keeps these alive until the run ends.
struct RunEnvironment : Ports {
  RunHost& host;
  CancelCheck& cancel;
  mFTP* ftp = nullptr;  ///< null in a program that only creates and previews
};

}  // namespace vantorium
