#pragma once

#include "env/PathMap.h"
#include "env/Shell.h"

#include <QObject>

namespace vantorium {

/// The desktop that the window stands on. Programs are started apart from this one and outlive it; those that are
/// watched are looked at from the toolkit's event loop, as long as this object lives.
class QtShell : public Shell {
 public:
  explicit QtShell(const PathMap& paths) : paths_(paths) {}

  void Beep(BeepKind kind) override;
  void OpenFile(const std::string& path) override;
  void Start(const ShellCommand& command, const StartFailed& failed) override;

 private:
  const PathMap& paths_;
  QObject watches_;  ///< owns a timer for each program that is watched
};

}  // namespace vantorium
