#include "tests/fuzz/Mutator.h"

#include "tests/fuzz/FuzzTarget.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace vantorium::fuzz {
namespace {

constexpr std::string_view kDigits = "0123456789";

/// Numbers at and beyond the limits of the readers' integer types.
constexpr std::array<std::string_view, 18> kNumbers = {
    "",      "0",     "1",          "-1",         "99",          "100",        "32767", "32768", "-32768",
    "65535", "65536", "2147483647", "2147483648", "-2147483649", "4294967296", "1e308", "0.5",   "007"};

struct Stretch {
  std::size_t begin;
  std::size_t end;
};

/// The next quoted text including its quotation marks; empty if there is none.
Stretch QuotedIn(std::string_view text, std::size_t from) {
  const auto begin = text.find('"', from);
  const auto end = begin == std::string_view::npos ? begin : text.find('"', begin + 1);
  return end == std::string_view::npos ? Stretch{0, 0} : Stretch{begin, end + 1};
}

}  // namespace

std::string Mutator::Next() {
  constexpr std::size_t kMostChanges = 4;
  std::string input = OneOf(corpus_);
  const bool keepsForm = Below(2) == 0;
  for (std::size_t changes = 1 + Below(kMostChanges); changes > 0; --changes) {
    keepsForm ? ChangeContent(input) : ChangeForm(input);
  }
  if (input.size() > kMostInputBytes) input.resize(kMostInputBytes);
  return input;
}

void Mutator::ChangeForm(std::string& input) {
  constexpr std::array<void (Mutator::*)(std::string&), 7> kChanges = {
      &Mutator::FlipBit, &Mutator::SetByte, &Mutator::Erase,  &Mutator::Repeat,
      &Mutator::CutOff,  &Mutator::Splice,  &Mutator::PutWord};
  (this->*kChanges[Below(kChanges.size())])(input);
}

/// Applies a change that usually keeps a text well-formed, so that its content is tested too.
void Mutator::ChangeContent(std::string& input) {
  constexpr std::array<void (Mutator::*)(std::string&), 3> kChanges = {&Mutator::PutWordBetween, &Mutator::PutNumber,
                                                                       &Mutator::PutValue};
  (this->*kChanges[Below(kChanges.size())])(input);
}

void Mutator::FlipBit(std::string& input) {
  if (input.empty()) return;
  char& byte = input[Below(input.size())];
  byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << Below(8)));
}

void Mutator::SetByte(std::string& input) {
  constexpr std::string_view kBytes("\x00\xFF\x7F\x80\x01 \t\r\n\"'<>&;=[]/\\%|", 21);
  if (input.empty()) return;
  const char known = kBytes[Below(kBytes.size())];
  input[Below(input.size())] = Below(3) == 0 ? static_cast<char>(Below(256)) : known;
}

void Mutator::Erase(std::string& input) {
  input.erase(PlaceIn(input), Length());
}

void Mutator::Repeat(std::string& input) {
  const std::string part = input.substr(PlaceIn(input), Length());
  const std::size_t place = PlaceIn(input);
  const std::size_t times = 1 + Below(4);
  for (std::size_t i = 0; i < times; ++i) input.insert(place, part);
}

void Mutator::CutOff(std::string& input) {
  // Half of the cuts are near the end, which leaves more to read.
  const std::size_t cut = Below(2) == 0 ? Length() : Below(input.size() + 1);
  input.resize(input.size() - std::min(cut, input.size()));
}

void Mutator::Splice(std::string& input) {
  const std::string& other = OneOf(corpus_);
  const std::size_t from = PlaceIn(other);
  if (Below(2) == 0) {
    input = input.substr(0, PlaceIn(input)) + other.substr(from);
  } else {
    input.insert(PlaceIn(input), other, from, Length());
  }
}

void Mutator::PutWord(std::string& input) {
  if (words_.empty()) return;
  const std::string& word = OneOf(words_);
  const std::size_t place = PlaceIn(input);
  input.replace(place, Below(2) == 0 ? 0 : word.size(), word);
}

/// Inserts a word after a delimiter, where a new element may begin.
void Mutator::PutWordBetween(std::string& input) {
  const auto end = input.find_first_of(">\"|\n", PlaceIn(input));
  if (!words_.empty() && end != std::string::npos) input.insert(end + 1, OneOf(words_));
}

/// Replaces a number.
void Mutator::PutNumber(std::string& input) {
  const auto begin = input.find_first_of(kDigits, PlaceIn(input));
  if (begin == std::string::npos) return;
  const auto end = std::min(input.find_first_not_of(kDigits, begin), input.size());
  input.replace(begin, end - begin, kNumbers[Below(kNumbers.size())]);
}

/// Replaces a quoted text by another one. This changes the content and keeps the form.
void Mutator::PutValue(std::string& input) {
  const Stretch place = QuotedIn(input, PlaceIn(input));
  const std::string& other = OneOf(corpus_);
  const Stretch source = QuotedIn(other, PlaceIn(other));
  if (place.begin != place.end && source.begin != source.end) {
    input =
        input.substr(0, place.begin) + other.substr(source.begin, source.end - source.begin) + input.substr(place.end);
  }
}

std::size_t Mutator::Length() {
  constexpr std::array<std::size_t, 3> kEnds = {4, 32, 400};
  return 1 + Below(kEnds[Below(kEnds.size())]);
}

}  // namespace vantorium::fuzz
