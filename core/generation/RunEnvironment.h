#pragma once

#include "core/Ports.h"
#include "core/generation/CancelCheck.h"
#include "core/generation/RunHost.h"
#include "publish/mFTP.h"

namespace vantorium::generation {

/// Everything a run needs from the program. The owner keeps these alive until the run ends.
struct RunEnvironment : core::Ports {
  RunHost& host;
  CancelCheck& cancel;
  publish::mFTP* ftp = nullptr;  ///< null in a program that only creates and previews
};

}  // namespace vantorium::generation
