#pragma once

#include "env/PathMap.h"
#include "env/Shell.h"

namespace vantorium {

/// The desktop that the window stands on. Programs are started apart from this one and outlive it.
class QtShell : public Shell {
 public:
  explicit QtShell(const PathMap& paths) : paths_(paths) {}

  void Beep(BeepKind kind) override;
  void OpenFile(const std::string& path) override;
  void Start(const ShellCommand& command) override;

 private:
  const PathMap& paths_;
};

}  // namespace vantorium
