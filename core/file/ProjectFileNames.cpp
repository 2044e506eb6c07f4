#include "core/file/ProjectFileNames.h"

#include "env/Text.h"

namespace vantorium::core {

std::string_view WordOf(FileWords words, std::int16_t index) {
  const auto position = static_cast<std::size_t>(index);  // a negative index becomes larger than every list
  return position < words.size() ? words[position] : std::string_view();
}

std::optional<std::int16_t> IndexOfWord(FileWords words, std::string_view word) {
  for (std::size_t index = 0; index < words.size(); ++index) {
    if (!words[index].empty() && env::EqualsIgnoringCase(words[index], word)) return static_cast<std::int16_t>(index);
  }
  return std::nullopt;
}

}  // namespace vantorium::core
