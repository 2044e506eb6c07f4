#include "env/INIText.h"

#include "env/Text.h"

namespace vantorium::env {
namespace {

bool BeginsWithKey(std::string_view line, std::string_view key) {
  return line.size() > key.size() && line[key.size()] == '=' && EqualsIgnoringCase(line.substr(0, key.size()), key);
}

/// Returns the key of a line, for the writer, which unlike the reader ignores blanks around it; empty without "=".
std::string_view KeyOf(std::string_view line) {
  const auto equals = line.find('=');
  return equals == std::string_view::npos ? std::string_view() : Trimmed(line.substr(0, equals), " \t");
}

std::string LineEndOf(std::string_view text) {
  const std::string_view end = text.empty() ? std::string_view() : TakeINILine(text).end;
  return std::string(end.empty() ? kCrLf : end);
}

/// Where a key's line begins and ends, without its line end. An empty stretch is where the line must be added.
struct Stretch {
  std::size_t begin;
  std::size_t end;
};

/// Returns the position after the section's line, or nullopt if there is no such section.
std::optional<std::size_t> BehindSectionLine(std::string_view text, std::string_view section) {
  for (std::string_view rest = text; !rest.empty();) {
    if (IsSectionLine(TakeINILine(rest).content, section)) return text.size() - rest.size();
  }
  return std::nullopt;
}

/// Returns the key's line in the section that begins at `start`, else the position after the section's last line that
/// is not blank.
Stretch PlaceOfKey(std::string_view text, std::size_t start, std::string_view key) {
  Stretch added = {start, start};
  for (std::string_view rest = text.substr(start); !rest.empty();) {
    const std::size_t begin = text.size() - rest.size();
    const std::string_view line = TakeINILine(rest).content;
    if (IsSectionLine(line)) break;
    if (EqualsIgnoringCase(KeyOf(line), key)) return {begin, begin + line.size()};
    if (!Trimmed(line, " \t").empty()) added.begin = added.end = text.size() - rest.size();
  }
  return added;
}

std::string ValueLine(std::string_view key, std::string_view value) {
  return std::string(key).append("=\"").append(value).append("\"");
}

bool EndsWithLineEnd(std::string_view text) {
  return text.empty() || text.ends_with('\n') || text.ends_with('\r');
}

}  // namespace

INILine TakeINILine(std::string_view& rest) {
  const auto size = std::min(rest.find_first_of("\r\n"), rest.size());
  const std::size_t end = rest.substr(size).starts_with(kCrLf) ? 2 : size < rest.size() ? 1 : 0;
  const INILine line = {rest.substr(0, size), rest.substr(size, end)};
  rest.remove_prefix(size + end);
  return line;
}

bool IsSectionLine(std::string_view line, std::string_view section) {
  const std::string_view trimmed = Trimmed(line);
  return trimmed.size() == section.size() + 2 && trimmed.front() == '[' && trimmed.back() == ']' &&
         EqualsIgnoringCase(trimmed.substr(1, section.size()), section);
}

bool IsSectionLine(std::string_view line) {
  return Trimmed(line, " \t").starts_with('[');
}

std::string_view WithoutMarks(std::string_view value) {
  if (!value.starts_with('"')) return value;
  value.remove_prefix(1);
  return value.substr(0, value.empty() ? 0 : value.size() - 1);
}

std::optional<std::string> FindINIString(std::string_view text, std::string_view section, std::string_view key) {
  std::string_view rest = text;
  std::string_view line;
  const auto readUntil = [&](auto found) {
    for (bool done = false; !done && !rest.empty(); done = found()) line = TakeINILine(rest).content;
  };
  readUntil([&] { return IsSectionLine(line, section); });
  readUntil([&] { return BeginsWithKey(line, key); });
  if (!BeginsWithKey(line, key)) return std::nullopt;
  return std::string(WithoutMarks(line.substr(key.size() + 1)));
}

std::string WithINIString(std::string_view text, std::string_view section, std::string_view key,
                          std::string_view value) {
  const std::string lineEnd = LineEndOf(text);
  std::string result(text);
  auto start = BehindSectionLine(text, section);
  if (!start) {
    if (!EndsWithLineEnd(result)) result += lineEnd;
    result.append("[").append(section).append("]").append(lineEnd);
    start = result.size();
  }
  const Stretch place = PlaceOfKey(result, *start, key);
  if (place.end > place.begin) {
    const std::string_view oldLine = std::string_view(result).substr(place.begin, place.end - place.begin);
    return result.replace(place.begin, oldLine.size(), ValueLine(KeyOf(oldLine), value));
  }
  const bool open = !EndsWithLineEnd(std::string_view(result).substr(0, place.begin));
  // A CR before an LF would merge two line ends into one and remove an empty line.
  const bool merges = lineEnd == "\r" && std::string_view(result).substr(place.begin).starts_with('\n');
  return result.insert(place.begin, (open ? lineEnd : "") + ValueLine(key, value) + (merges ? "\r\n" : lineEnd));
}

}  // namespace vantorium::env
