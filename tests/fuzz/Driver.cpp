// The main program of a fuzz target: replays its corpus, then random mutations of it. A separate process runs the
// target and stores each input in a file first, so that the input survives however that process ends.
#include "env/FileDescriptor.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/fuzz/FuzzTarget.h"
#include "tests/fuzz/Mutator.h"
#include "tests/fuzz/Words.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <vector>

#include <CLI/CLI.hpp>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vantorium::fuzz {
namespace {

namespace fs = std::filesystem;

// An input that takes longer counts as a hang. The limit allows for a busy machine.
constexpr unsigned kMostSeconds = 60;
// For the whole process, including the memory of a sanitizer.
constexpr long kMostKilobytes = 1L << 20;

struct Options {
  std::vector<std::string> inputs;
  std::string corpus;
  std::string words;
  std::uint64_t rounds = 0;
  std::uint64_t seed = 1;
};

void Store(const env::FileDescriptor& file, const std::string& input) {
  const auto size = static_cast<ssize_t>(input.size());
  if (::ftruncate(file.Get(), 0) != 0 || ::pwrite(file.Get(), input.data(), input.size(), 0) != size) {
    throw std::runtime_error("the input could not be stored");
  }
}

void RunOne(const env::FileDescriptor& file, const std::string& input) {
  Store(file, input);
  // An exact-size copy, so that the address sanitizer sees reads past the end.
  const std::vector<std::uint8_t> bytes(input.begin(), input.end());
  ::alarm(kMostSeconds);
  LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
  ::alarm(0);
  rusage usage = {};
  ::getrusage(RUSAGE_SELF, &usage);
  Require(usage.ru_maxrss <= kMostKilobytes, "memory stays bounded");
}

std::vector<std::string> ReadCorpus(const Options& options) {
  std::vector<fs::path> files(options.inputs.begin(), options.inputs.end());
  if (!options.corpus.empty()) {
    for (const auto& entry : fs::directory_iterator(options.corpus)) files.push_back(entry.path());
  }
  std::ranges::sort(files);
  std::vector<std::string> corpus;
  for (const fs::path& file : files) {
    if (!fs::is_regular_file(file)) throw std::runtime_error("there is no file " + file.string());
    corpus.push_back(fakes::TemporaryFolder::ReadFile(file));
  }
  return corpus;
}

void RunAll(const Options& options, const env::FileDescriptor& file) {
  const std::vector<std::string> corpus = ReadCorpus(options);
  if (corpus.empty()) throw std::runtime_error("there is no input");
  for (const std::string& input : corpus) RunOne(file, input);
  Mutator mutator(corpus, ReadWords(options.words), options.seed);
  for (std::uint64_t round = 0; round < options.rounds; ++round) RunOne(file, mutator.Next());
}

/// Runs in the worker process. It returns through main so that the leak check runs.
int Work(const Options& options, const env::FileDescriptor& file) {
  try {
    RunAll(options, file);
    return EXIT_SUCCESS;
  } catch (const std::exception& error) {
    fmt::print(stderr, "Stopped by: {}\n", error.what());
    return EXIT_FAILURE;
  }
}

std::string EndOf(int status) {
  if (!WIFSIGNALED(status)) return fmt::format("ended with {}", WEXITSTATUS(status));
  const int signal = WTERMSIG(status);
  return signal == SIGALRM ? fmt::format("did not end in {} s", kMostSeconds)
                           : fmt::format("ended by: {}", ::strsignal(signal));
}

/// Waits for the worker process. If it failed, prints where its last input is.
int Watch(const char* program, pid_t worker, const fs::path& input) {
  int status = 0;
  if (::waitpid(worker, &status, 0) == worker && status == 0) {
    fs::remove(input);
    return EXIT_SUCCESS;
  }
  fmt::print(stderr, "{0}: {1}\nThe last input is in {2}\nAgain: {0} {2}\n", program, EndOf(status), input.string());
  return EXIT_FAILURE;
}

void Declare(CLI::App& app, Options& options) {
  app.add_option("inputs", options.inputs, "Files to read, one after the other");
  app.add_option("--corpus", options.corpus, "Folder of files to read");
  app.add_option("--words", options.words, "Words that changes may put in");
  app.add_option("--rounds", options.rounds, "How many changed inputs follow");
  app.add_option("--seed", options.seed, "Which changes");
}

int RunWatched(const Options& options, const char* program) {
  const fs::path input = fs::absolute(fmt::format("{}-{}.input", fs::path(program).filename().string(), ::getpid()));
  const env::FileDescriptor file(::open(input.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
  const pid_t worker = file.IsOpen() ? ::fork() : -1;
  if (worker == 0) return Work(options, file);
  if (worker > 0) return Watch(program, worker, input);
  fmt::print(stderr, "{}: {} could not be made, or no process\n", program, input.string());
  return EXIT_FAILURE;
}

}  // namespace
}  // namespace vantorium::fuzz

int main(int argc, char** argv) {
  vantorium::fuzz::Options options;
  CLI::App app("Replays inputs of a fuzz target, and random changes of them.");
  vantorium::fuzz::Declare(app, options);
  CLI11_PARSE(app, argc, argv);
  return vantorium::fuzz::RunWatched(options, argv[0]);
}
