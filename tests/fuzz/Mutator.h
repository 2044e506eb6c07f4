#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace vantorium::fuzz {

/// Makes inputs out of good ones. The same arguments give the same inputs everywhere.
class Mutator {
 public:
  /// `corpus` may not be empty.
  Mutator(std::vector<std::string> corpus, std::vector<std::string> words, std::uint64_t seed)
      : corpus_(std::move(corpus)), words_(std::move(words)), random_(seed) {}

  /// One of the corpus with a few changes, at most kMostInputBytes.
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

  /// From 0 to before `end`, which is not 0.
  [[nodiscard]] std::size_t Below(std::size_t end) { return static_cast<std::size_t>(random_() % end); }
  /// A place in `input`, or behind its end.
  [[nodiscard]] std::size_t PlaceIn(const std::string& input) { return Below(input.size() + 1); }
  /// How many bytes a change takes: mostly few.
  [[nodiscard]] std::size_t Length();
  [[nodiscard]] const std::string& OneOf(const std::vector<std::string>& texts) { return texts[Below(texts.size())]; }

  std::vector<std::string> corpus_;
  std::vector<std::string> words_;
  std::mt19937_64 random_;
};

}  // namespace vantorium::fuzz
