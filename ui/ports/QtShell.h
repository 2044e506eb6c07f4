#pragma once

#include "env/PathMap.h"
#include "env/Shell.h"

#include <QObject>

namespace vantorium::ui {

/// The desktop that shows the window. Started programs run independently and outlive this one. Watched programs are
/// polled from Qt's event loop while this object lives.
class QtShell : public env::Shell {
 public:
  explicit QtShell(const env::PathMap& paths) : paths_(paths) {}

  void Beep(env::BeepKind kind) override;
  void OpenFile(const std::string& path) override;
  void Start(const env::ShellCommand& command, const env::StartFailed& failed) override;

 private:
  const env::PathMap& paths_;
  QObject watches_;  ///< owns a timer for each watched program
};

}  // namespace vantorium::ui
