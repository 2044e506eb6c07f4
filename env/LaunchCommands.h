#pragma once

#include "env/PathMap.h"
#include "env/Shell.h"

#include <array>
#include <string>

namespace vantorium::env {

/// The commands that are tried to open a file: the second only if the first could not be started.
using LaunchAttempts = std::array<ShellCommand, 2>;

/// Opens `file` (path text) with the desktop's default program for it:
///
///   xdg-open FILE       comes with every desktop and detects which one is running
///   gio open FILE       from GLib, for a desktop without xdg-open
///
/// Throws RuntimeFailure FileNotFound for a file on no drive.
[[nodiscard]] LaunchAttempts DefaultOpener(const std::string& file, const PathMap& paths);

/// Opens `file` (path text) in the browser that the user listed as `location`:
///
///   LOCATION FILE                        a program by its path (path text or native) or by its name
///   /bin/sh -c 'LOCATION "$1"' sh FILE   a command line: a program with options, with a variable or "~" in its path
///
/// Throws RuntimeFailure FileNotFound for a file on no drive, and for an empty location.
[[nodiscard]] LaunchAttempts ListedBrowser(const std::string& location, const std::string& file, const PathMap& paths);

/// Makes the attempts. If both fail, calls `failed` with the failure of the second, perhaps later (see Shell::Start).
void Launch(const LaunchAttempts& attempts, Shell& shell, const StartFailed& failed);

}  // namespace vantorium::env
