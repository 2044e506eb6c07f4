#include "app/batch/BatchCommands.h"
#include "app/batch/Terminal.h"
#include "env/StandardStreams.h"

#include <csignal>
#include <exception>

int main(int argc, char** argv) {
  using vantorium::batch::ExitCode;
  vantorium::env::HoldStandardStreams();
  // A failed write reports its own failure and must not end the program.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    const auto parsed = vantorium::batch::ParseCommandLine(argc, argv);
    if (const auto* end = std::get_if<ExitCode>(&parsed)) return static_cast<int>(*end);
    return static_cast<int>(vantorium::batch::RunBatchCommand(std::get<vantorium::batch::BatchOptions>(parsed)));
  } catch (const std::exception& failure) {
    vantorium::batch::SayInOneLine(failure.what());
    return static_cast<int>(ExitCode::Failure);
  }
}
