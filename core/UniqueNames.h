#pragma once

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace vantorium::core {

/// The set of names of a list. Names are compared exactly. Operations take amortized logarithmic time, even if every
/// requested name is the same.
class UniqueNames {
 public:
  [[nodiscard]] bool IsTaken(std::string_view name) const { return taken_.contains(name); }

  /// Takes `wanted`, or, if that is taken, `wanted` + "_" + the lowest number from 1 that gives a free name. Returns
  /// the name taken.
  std::string Take(const std::string& wanted);
  /// Makes a taken name free again.
  void Release(std::string_view name);
  void Clear();

 private:
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };

  /// The numbers given out for one base: those below `next` are taken, except the ones in `free`.
  struct Numbers {
    std::size_t next = 1;
    std::set<std::size_t> free;
  };
  using NumbersOfBases = std::unordered_map<std::string, Numbers, Hash, std::equal_to<>>;

  static void MarkTaken(Numbers& numbers, std::size_t number);
  std::size_t LowestFreeNumber(const std::string& base);

  std::unordered_set<std::string, Hash, std::equal_to<>> taken_;
  NumbersOfBases numbers_;  ///< of the bases that were requested more than once
};

}  // namespace vantorium::core
