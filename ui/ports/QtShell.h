#pragma once

#include "env/PathMap.h"
#include "env/Shell.h"

#include <QObject>

namespace vantorium {

/// The desktop that shows the window. Started programs run independently and outlive this one. Watched programs are
/// polled from Qt's event loop while this object lives.
class QtShell : public Shell {
 public:
  explicit QtShell(const PathMap& paths) : paths_(paths) {}

  void Beep(BeepKind kind) override;
  void OpenFile(const std::string& path) override;
  void Start(const ShellCommand& command, const StartFailed& failed) override;

 private:
  const PathMap& paths_;
  QObject watches_;  ///< owns a timer for each watched program
};

}  // namespace vantorium
