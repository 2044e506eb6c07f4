// Measures how long a project file takes to write and to read, by its number of images: ten times the images must take
// about ten times as long, even if all images have the same name. All images are one small file that only has to exist.

#include "core/ProjectSession.h"
#include "tests/fakes/TemporaryFolder.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace vantorium {
namespace {

class QuietBoxes : public env::MessageBoxPort {
 public:
  env::BoxAnswer Show(env::BoxKind, env::BoxButtons, const std::string&, const std::string&) override {
    return env::BoxAnswer::Ok;
  }
};

class QuietEvents : public env::EventLoop {
 public:
  void Turn() override {}
};

enum Names { Different, Same };

/// A project with its own file, and everything needed to read and write it.
class Bench {
 public:
  Bench(std::size_t images, Names names) {
    source_ = paths_.ToText(folder_.Write("photo.jpg", "one photograph"));
    target_ = paths_.ToText(folder_.Path() / "bench.gpj");
    session_.NewProject();
    for (std::size_t position = 1; position <= images; ++position) {
      const std::string name = names == Same ? "photo.jpg" : "photo" + std::to_string(position) + ".jpg";
      project_.images.Insert(position, {name, source_, "", "", "A description", "Another"});
    }
  }

  [[nodiscard]] bool Write() { return session_.SaveProjectTo(target_); }
  [[nodiscard]] bool Read() { return session_.LoadProject(target_); }

 private:
  fakes::TemporaryFolder folder_;
  env::PathMap paths_{{}};
  env::RegionalFormats formats_;
  env::mFileFunctions files_{paths_, formats_};
  QuietBoxes boxes_;
  QuietEvents events_;
  core::ImageListDisplay display_;
  core::ProjectFileDialog dialog_;
  core::ProjectSessionHost host_;
  core::Project project_;
  core::ImageListOperations images_{project_, files_, boxes_, display_};
  core::ProjectSession session_{project_, images_, {paths_, boxes_, dialog_, host_, events_}};
  std::string source_;
  std::string target_;
};

/// Returns freed memory to the system, so that a small project does not profit from the memory of the previous round:
/// users open and save with fresh memory whatever the size.
void ForgetMemory(benchmark::State& state) {
  state.PauseTiming();
  ::malloc_trim(0);
  state.ResumeTiming();
}

void WriteProject(benchmark::State& state, Names names) {
  Bench bench(static_cast<std::size_t>(state.range(0)), names);
  for (auto _ : state) {
    ForgetMemory(state);
    if (!bench.Write()) state.SkipWithError("the project was not written");
  }
  state.SetComplexityN(state.range(0));
}

void ReadProject(benchmark::State& state, Names names) {
  Bench bench(static_cast<std::size_t>(state.range(0)), names);
  if (!bench.Write()) state.SkipWithError("the project was not written");
  for (auto _ : state) {
    ForgetMemory(state);
    if (!bench.Read()) state.SkipWithError("the project was not read");
  }
  state.SetComplexityN(state.range(0));
}

void Sizes(benchmark::internal::Benchmark* bench) {
  bench->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

BENCHMARK_CAPTURE(WriteProject, DifferentNames, Different)->Apply(Sizes);
BENCHMARK_CAPTURE(WriteProject, OneName, Same)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadProject, DifferentNames, Different)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadProject, OneName, Same)->Apply(Sizes);

}  // namespace
}  // namespace vantorium

BENCHMARK_MAIN();
