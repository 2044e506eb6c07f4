#pragma once

#include "core/Shuffle.h"

#include <string>
#include <vector>

namespace vantorium::fakes {

/// The ports of a shuffle in one object: repeats the scripted numbers, records the progress bar and the turns, and
/// presses Stop in turn `stopInTurn`.
class ScriptedShuffle : private core::ShuffleProgress, private env::EventLoop, private core::RandomNumbers {
 public:
  explicit ScriptedShuffle(std::vector<double> numbers) : numbers_(std::move(numbers)) {}

  [[nodiscard]] core::ShuffleTools Tools() { return {*this, *this, *this}; }

  int stopInTurn = 0;  ///< 0: never

  std::vector<std::string> calls;  ///< "open", "seed", "close"
  std::vector<double> percents;
  std::size_t roundsBeforeFirstTurn = 0;
  int turns = 0;
  std::size_t draws = 0;

 private:
  void Open() override { calls.emplace_back("open"); }
  void SetPercent(double percent) override { percents.push_back(percent); }
  [[nodiscard]] bool StopRequested() const override { return stopInTurn != 0 && turns >= stopInTurn; }
  void Close() override { calls.emplace_back("close"); }
  void Turn() override {
    if (turns++ == 0) roundsBeforeFirstTurn = percents.size();
  }
  void SeedFromClock() override { calls.emplace_back("seed"); }
  [[nodiscard]] double Next() override { return numbers_[draws++ % numbers_.size()]; }

  std::vector<double> numbers_;
};

}  // namespace vantorium::fakes
