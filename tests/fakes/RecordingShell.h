#pragma once

#include "env/Shell.h"

#include <string>
#include <vector>

namespace vantorium::fakes {

/// Records the calls; starts and opens nothing.
class RecordingShell : public env::Shell {
 public:
  void Beep(env::BeepKind kind) override { beeps.push_back(kind); }
  void OpenFile(const std::string& path) override { opened.push_back(path); }
  void Start(const env::ShellCommand& command, const env::StartFailed& /*failed*/) override {
    started.push_back(command.words);
  }

  std::vector<env::BeepKind> beeps;
  std::vector<std::string> opened;
  std::vector<std::vector<std::string>> started;
};

}  // namespace vantorium::fakes
