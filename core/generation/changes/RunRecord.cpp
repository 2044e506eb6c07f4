#include "core/generation/changes/RunRecord.h"

#include "env/Digest.h"
#include "env/Text.h"

#include <charconv>

#include <fmt/format.h>

namespace vantorium::generation {
namespace {

constexpr std::string_view kFirstLine = "vantorium record 2";
constexpr std::string_view kNone = "-";

std::string Escaped(const std::string& text) {
  return env::ReplaceAll(env::ReplaceAll(env::ReplaceAll(text, "%", "%25"), "\r", "%0D"), "\n", "%0A");
}

std::string Unescaped(std::string_view text) {
  return env::ReplaceAll(env::ReplaceAll(env::ReplaceAll(text, "%0A", "\n"), "%0D", "\r"), "%25", "%");
}

std::string Heading(std::string_view program, const std::string& target) {
  return fmt::format("{}\nprogram {}\ntarget {}\n", kFirstLine, program, Escaped(target));
}

std::string_view OrNone(const std::string& digest) {
  return digest.empty() ? kNone : digest;
}

/// Takes the text up to `separator` off the front of `rest`; the whole text if there is none.
std::string_view Next(std::string_view& rest, char separator) {
  const auto end = std::min(rest.find(separator), rest.size());
  const std::string_view next = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return next;
}

template <typename Number>
bool Read(std::string_view text, Number& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

bool ReadStamp(std::string_view text, std::optional<SourceStamp>& stamp) {
  if (text == kNone) return true;
  SourceStamp read;
  stamp = read;
  return Read(Next(text, ':'), stamp->device) && Read(Next(text, ':'), stamp->inode) &&
         Read(Next(text, ':'), stamp->size) && Read(Next(text, ':'), stamp->writeTime) && Read(text, stamp->changeTime);
}

std::string ReadDigest(std::string_view text) {
  return text == kNone ? std::string() : std::string(text);
}

bool ReadFile(std::string_view line, MadeFiles& files) {
  MadeFile file;
  if (!Read(Next(line, ' '), file.size) || !ReadStamp(Next(line, ' '), file.stamp)) return false;
  file.origin = ReadDigest(Next(line, ' '));
  file.bytes = ReadDigest(Next(line, ' '));
  file.gallery = ReadDigest(Next(line, ' '));
  if (line.empty()) return false;
  files.insert_or_assign(Unescaped(line), std::move(file));
  return true;
}

/// Takes the last line off a record. Returns false if it does not prove the rest to be whole.
bool TakeEnd(std::string_view& text) {
  constexpr std::string_view kEnd = "end ";
  if (!text.ends_with('\n')) return false;
  text.remove_suffix(1);
  const auto start = text.rfind('\n') + 1;
  const std::string_view last = text.substr(start);
  text = text.substr(0, start);
  return last.starts_with(kEnd) && last.substr(kEnd.size()) == env::DigestOf(text);
}

/// Takes the first three lines off a record. Returns the program that made it, or nullopt if they are others.
std::optional<std::string> TakeHeading(std::string_view& text, const std::string& target) {
  constexpr std::string_view kProgram = "program ";
  std::string_view rest = text;
  Next(rest, '\n');
  std::string_view program = Next(rest, '\n');
  if (!program.starts_with(kProgram)) return std::nullopt;
  program.remove_prefix(kProgram.size());
  const std::string heading = Heading(program, target);
  if (!text.starts_with(heading)) return std::nullopt;
  text.remove_prefix(heading.size());
  return Unescaped(program);
}

}  // namespace

std::string RunRecordText(const MadeFiles& files, const RecordSubject& subject) {
  std::string text = Heading(Escaped(subject.program), subject.target);
  for (const auto& [name, file] : files) {
    text += fmt::format("{} {} {} {} {} {}\n", file.size, file.stamp ? StampText(*file.stamp) : kNone,
                        OrNone(file.origin), OrNone(file.bytes), OrNone(file.gallery), Escaped(name));
  }
  return text + "end " + env::DigestOf(text) + "\n";
}

MadeFiles ReadRunRecord(std::string_view text, const RecordSubject& subject) {
  if (!TakeEnd(text)) return {};
  const auto program = TakeHeading(text, subject.target);
  if (!program) return {};
  MadeFiles files;
  while (!text.empty()) {
    if (!ReadFile(Next(text, '\n'), files)) return {};
  }
  if (*program == subject.program) return files;
  for (auto& [name, file] : files) file.origin = file.bytes = "";
  return files;
}

}  // namespace vantorium::generation
