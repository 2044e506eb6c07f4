#include "app/batch/BatchCommands.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
  using vantorium::ExitCode;
  try {
    const auto parsed = vantorium::ParseCommandLine(argc, argv);
    if (const auto* end = std::get_if<ExitCode>(&parsed)) return static_cast<int>(*end);
    return static_cast<int>(vantorium::RunBatchCommand(std::get<vantorium::BatchOptions>(parsed)));
  } catch (const std::exception& failure) {
    std::cerr << "vantorium-batch: " << failure.what() << '\n';
    return static_cast<int>(ExitCode::Failure);
  }
}
