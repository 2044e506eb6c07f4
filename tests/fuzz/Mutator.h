#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace vantorium::fuzz {

/// Makes inputs by mutating valid ones. The same arguments give the same inputs on every machine.
class Mutator {
 public:
  /// `corpus` must not be empty.
  Mutator(std::vector<std::string> corpus, std::vector<std::string> words, std::uint64_t seed)
      : corpus_(std::move(corpus)), words_(std::move(words)), random_(seed) {}

  /// An input of the corpus with a few changes, at most kMostInputBytes long.
  [[nodiscard]] std::string Next();

 private:
  void ChangeForm(std::string& input);
  void ChangeContent(std::string& input);
  void FlipBit(std::string& input);
  void SetByte(std::string& input);
  void Erase(std::string& input);
  void Repeat(std::string& input);
  void CutOff(std::string& input);
  void Splice(std::string& input);
  void PutWord(std::string& input);
  void PutWordBetween(std::string& input);
  void PutNumber(std::string& input);
  void PutValue(std::string& input);

  /// A random number from 0 to `end` - 1. `end` must not be 0.
  [[nodiscard]] std::size_t Below(std::size_t end) { return static_cast<std::size_t>(random_() % end); }
  /// A random position in `input`, or its end.
  [[nodiscard]] std::size_t PlaceIn(const std::string& input) { return Below(input.size() + 1); }
  /// A random length in bytes for a change, usually small.
  [[nodiscard]] std::size_t Length();
  [[nodiscard]] const std::string& OneOf(const std::vector<std::string>& texts) { return texts[Below(texts.size())]; }

  std::vector<std::string> corpus_;
  std::vector<std::string> words_;
  std::mt19937_64 random_;
};

}  // namespace vantorium::fuzz
