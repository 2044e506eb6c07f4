#include "ui/model/files/FileFilters.h"

#include "env/Text.h"

namespace vantorium::ui {
namespace {

constexpr std::string_view kEveryFile = "*";

std::vector<std::string> PiecesOf(std::string_view text, char separator) {
  std::vector<std::string> pieces;
  while (!text.empty()) {
    const std::size_t end = text.find(separator);
    pieces.emplace_back(text.substr(0, end));
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  }
  return pieces;
}

std::vector<std::string> PatternsOf(std::string_view text) {
  std::vector<std::string> patterns;
  for (const std::string& piece : PiecesOf(text, ';')) {
    const std::string pattern(env::TrimNull(piece));
    if (pattern.empty()) continue;
    const bool any = pattern == "*.*" || env::EqualsIgnoringCase(pattern, "*.exe");
    patterns.push_back(any ? std::string(kEveryFile) : pattern);
  }
  if (patterns.empty()) patterns.emplace_back(kEveryFile);
  return patterns;
}

}  // namespace

std::vector<FileFilter> ParseFileFilters(std::string_view filter) {
  const std::vector<std::string> pieces = PiecesOf(filter, '|');
  std::vector<FileFilter> filters;
  for (std::size_t i = 0; i < pieces.size(); i += 2) {
    filters.push_back({pieces[i], PatternsOf(i + 1 < pieces.size() ? pieces[i + 1] : "")});
  }
  return filters;
}

}  // namespace vantorium::ui
