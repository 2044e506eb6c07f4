#include "env/LaunchCommands.h"

#include "env/RuntimeFailure.h"

namespace vantorium::env {
namespace {

using std::chrono::milliseconds;

/// An opener exits once it has found its program; some wait until the user closes that program.
constexpr milliseconds kOpenerWatched{3000};
/// The shell exits at once if there is no such program, else when the browser does.
constexpr milliseconds kInterpreterWatched{1000};

std::string Native(const std::string& file, const PathMap& paths) {
  const auto native = paths.ToNative(file);
  if (!native) throw RuntimeFailure(FailureKind::FileNotFound);
  return native->string();
}

}  // namespace

LaunchAttempts DefaultOpener(const std::string& file, const PathMap& paths) {
  const std::string native = Native(file, paths);
  return {{{{"xdg-open", native}, kOpenerWatched}, {{"gio", "open", native}, kOpenerWatched}}};
}

LaunchAttempts ListedBrowser(const std::string& location, const std::string& file, const PathMap& paths) {
  // Without a program, the shell would run the file.
  if (location.find_first_not_of(" \t\r\n") == std::string::npos) throw RuntimeFailure(FailureKind::FileNotFound);
  const std::string native = Native(file, paths);
  const std::string program = paths.ToNative(location).value_or(location).string();
  const std::string commandLine = location + " \"$1\"";
  return {{{{program, native}, milliseconds(0)}, {{"/bin/sh", "-c", commandLine, "sh", native}, kInterpreterWatched}}};
}

void Launch(const LaunchAttempts& attempts, Shell& shell, const StartFailed& failed) {
  shell.Start(attempts[0], [&shell, second = attempts[1], failed](const RuntimeFailure& /*failure*/) {
    shell.Start(second, failed);
  });
}

}  // namespace vantorium::env
