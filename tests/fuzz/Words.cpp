#include "tests/fuzz/Words.h"

#include "tests/fakes/TemporaryFolder.h"
#include "tests/fuzz/FuzzTarget.h"

#include <charconv>
#include <stdexcept>

namespace vantorium::fuzz {
namespace {

[[noreturn]] void Refuse(std::string_view line) {
  throw std::runtime_error("no word of a dictionary: " + std::string(line));
}

/// Removes the escape at the start of `rest` and returns its byte.
char TakeEscape(std::string_view& rest, std::string_view line) {
  rest.remove_prefix(1);
  if (rest.starts_with('\\') || rest.starts_with('"')) {
    const char byte = rest.front();
    rest.remove_prefix(1);
    return byte;
  }
  unsigned value = 0;
  if (!rest.starts_with('x') || rest.size() < 3) Refuse(line);
  const auto [end, error] = std::from_chars(rest.data() + 1, rest.data() + 3, value, 16);
  if (error != std::errc() || end != rest.data() + 3) Refuse(line);
  rest.remove_prefix(3);
  return static_cast<char>(value);
}

std::string WordOf(std::string_view line) {
  if (line.size() < 3 || !line.starts_with('"') || !line.ends_with('"')) Refuse(line);
  std::string word;
  for (std::string_view rest = line.substr(1, line.size() - 2); !rest.empty();) {
    if (rest.front() == '\\') {
      word += TakeEscape(rest, line);
    } else {
      word += rest.front();
      rest.remove_prefix(1);
    }
  }
  return word;
}

}  // namespace

std::vector<std::string> WordsOf(std::string_view text) {
  std::vector<std::string> words;
  while (!text.empty()) {
    const std::string line = TakePart(text, '\n');
    if (!line.empty() && !line.starts_with('#')) words.push_back(WordOf(line));
  }
  return words;
}

std::vector<std::string> ReadWords(const std::filesystem::path& file) {
  return WordsOf(fakes::TemporaryFolder::ReadFile(file));
}

}  // namespace vantorium::fuzz
