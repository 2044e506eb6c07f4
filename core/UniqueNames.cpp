#include "core/UniqueNames.h"

#include <charconv>
#include <optional>

namespace vantorium::core {
namespace {

struct NumberedName {
  std::string_view base;
  std::size_t number;
};

/// Splits "base_12". Returns nullopt for a name that no number of a base produces, such as "base_0" or "base_012".
std::optional<NumberedName> TakenApart(std::string_view name) {
  const auto underscore = name.rfind('_');
  if (underscore == std::string_view::npos) return std::nullopt;
  const std::string_view digits = name.substr(underscore + 1);
  if (digits.empty() || digits.front() < '1' || digits.front() > '9') return std::nullopt;
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return NumberedName{name.substr(0, underscore), number};
}

std::string Numbered(const std::string& base, std::size_t number) {
  return base + "_" + std::to_string(number);
}

}  // namespace

std::string UniqueNames::Take(const std::string& wanted) {
  std::string name = IsTaken(wanted) ? Numbered(wanted, LowestFreeNumber(wanted)) : wanted;
  taken_.insert(name);
  if (const auto parts = TakenApart(name)) {
    const auto numbers = numbers_.find(parts->base);
    if (numbers != numbers_.end()) MarkTaken(numbers->second, parts->number);
  }
  return name;
}

void UniqueNames::MarkTaken(Numbers& numbers, std::size_t number) {
  if (number == numbers.next) ++numbers.next;
  numbers.free.erase(number);
}

// Continues where the last search ended, so that a taken name is passed only once, not at each request for its base.
std::size_t UniqueNames::LowestFreeNumber(const std::string& base) {
  Numbers& numbers = numbers_[base];
  if (!numbers.free.empty()) return *numbers.free.begin();
  while (IsTaken(Numbered(base, numbers.next))) ++numbers.next;
  return numbers.next;
}

void UniqueNames::Release(std::string_view name) {
  const auto taken = taken_.find(name);
  if (taken == taken_.end()) return;
  taken_.erase(taken);
  const auto parts = TakenApart(name);
  if (!parts) return;
  const auto numbers = numbers_.find(parts->base);
  if (numbers == numbers_.end() || parts->number >= numbers->second.next) return;
  auto& [next, free] = numbers->second;
  free.insert(parts->number);
  // Forgets a base none of whose numbers is in use, so that only names in the list cost memory.
  if (free.size() + 1 == next) numbers_.erase(numbers);
}

void UniqueNames::Clear() {
  taken_.clear();
  numbers_.clear();
}

}  // namespace vantorium::core
