#include "app/batch/BatchCommands.h"
#include "app/batch/Terminal.h"
#include "env/StandardStreams.h"

#include <csignal>
#include <exception>

int main(int argc, char** argv) {
  using vantorium::ExitCode;
  vantorium::HoldStandardStreams();
  // A failed write reports its own failure and must not end the program.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    const auto parsed = vantorium::ParseCommandLine(argc, argv);
    if (const auto* end = std::get_if<ExitCode>(&parsed)) return static_cast<int>(*end);
    return static_cast<int>(vantorium::RunBatchCommand(std::get<vantorium::BatchOptions>(parsed)));
  } catch (const std::exception& failure) {
    vantorium::SayInOneLine(failure.what());
    return static_cast<int>(ExitCode::Failure);
  }
}
