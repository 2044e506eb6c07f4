#include "publish/PassiveReply.h"

#include "env/Text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace vantorium::publish {
namespace {

/// Takes a decimal number from the front of `text`. Returns nullopt if there is none of at most `most`.
std::optional<unsigned> TakeNumber(std::string_view& text, unsigned most) {
  unsigned number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || number > most) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

std::optional<std::uint16_t> AsPort(unsigned number) {
  if (number == 0) return std::nullopt;
  return static_cast<std::uint16_t>(number);
}

/// Takes "n,n,n,n,n,n" from the front of `text`, each number at most 255.
std::optional<std::array<unsigned, 6>> TakeSixNumbers(std::string_view text) {
  std::array<unsigned, 6> numbers = {};
  for (std::size_t at = 0; at < numbers.size(); ++at) {
    if (at > 0) {
      if (!text.starts_with(',')) return std::nullopt;
      text.remove_prefix(1);
    }
    const auto number = TakeNumber(text, 255);
    if (!number) return std::nullopt;
    numbers[at] = *number;
  }
  return numbers;
}

}  // namespace

std::optional<std::uint16_t> PortOfEpsvReply(std::string_view text) {
  const auto open = text.find('(');
  if (open == std::string_view::npos || text.size() < open + 5) return std::nullopt;
  const char delimiter = text[open + 1];
  const bool isDelimiter = delimiter >= '!' && delimiter <= '~' && !env::IsAsciiDigit(delimiter);
  if (!isDelimiter || text[open + 2] != delimiter || text[open + 3] != delimiter) return std::nullopt;
  text.remove_prefix(open + 4);
  const auto port = TakeNumber(text, 65535);
  const bool isClosed = text.size() >= 2 && text[0] == delimiter && text[1] == ')';
  return port && isClosed ? AsPort(*port) : std::nullopt;
}

std::optional<std::uint16_t> PortOfPasvReply(std::string_view text) {
  for (auto digit = std::ranges::find_if(text, env::IsAsciiDigit); digit != text.end();) {
    const auto start = static_cast<std::size_t>(digit - text.begin());
    if (const auto numbers = TakeSixNumbers(text.substr(start))) return AsPort((*numbers)[4] * 256 + (*numbers)[5]);
    // Not inside the same number: the 99 of "999,..." begins no address.
    text.remove_prefix(start);
    text.remove_prefix(static_cast<std::size_t>(std::ranges::find_if_not(text, env::IsAsciiDigit) - text.begin()));
    digit = std::ranges::find_if(text, env::IsAsciiDigit);
  }
  return std::nullopt;
}

}  // namespace vantorium::publish
