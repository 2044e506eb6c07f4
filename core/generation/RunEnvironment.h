#pragma once

#include "core/Ports.h"
#include "core/generation/CancelCheck.h"
#include "core/generation/RunHost.h"
#include "publish/mFTP.h"

#include <filesystem>

namespace vantorium::generation {

/// Everything a run needs from the program. The owner keeps these alive until the run ends.
struct RunEnvironment : core::Ports {
  RunHost& host;
  CancelCheck& cancel;
  publish::mFTP* ftp = nullptr;         ///< null in a program that only creates and previews
  std::filesystem::path cacheFolder{};  ///< for the records of runs with OnlyChanges, native; empty: none are kept
};

}  // namespace vantorium::generation
